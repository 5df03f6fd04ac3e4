#include "support/form_placement.h"

#include <algorithm>
#include <climits>
#include <cstdint>

/// Where a thing of that size begins so that it stands in the middle of the room. Sizes and places may come from a file
/// that anybody has edited.
static int Middle(int start, int room, int size)
{
    const std::int64_t middle = start + (std::int64_t{room} - size) / 2;
    return static_cast<int>(std::clamp<std::int64_t>(middle, INT_MIN, INT_MAX));
}

/// The place, moved so that it lies within the room; its start on the room's if it is larger.
static int Within(int place, int size, int start, int room)
{
    const std::int64_t last = std::int64_t{start} + room - size;
    return static_cast<int>(std::max<std::int64_t>(start, std::min<std::int64_t>(place, last)));
}

void Place_Form(Placement placement, Form_Place& form, const Form_Place& main_form, bool placed)
{
    form.Window_State = 0;
    if (placement == Placement::First_Run && placed)
        return;
    if (placement == Placement::Over_Main_Form) {
        form.Width = main_form.Width;
        form.Height = main_form.Height;
    }
    form.Left = Middle(main_form.Left, main_form.Width, form.Width);
    form.Top = Middle(main_form.Top, main_form.Height, form.Height);
}

void Ensure_Visible(Form_Place& form, const Form_Place& screen)
{
    if (form.Window_State != 0)
        return;
    form.Left = Within(form.Left, form.Width, screen.Left, screen.Width);
    form.Top = Within(form.Top, form.Height, screen.Top, screen.Height);
}
