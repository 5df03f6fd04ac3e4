#include "workbenches/viewer_place.h"

#include "state/settings_state.h"
#include "support/form_placement.h"

void Place_Viewer(Form_Place& form, const Form_Place& main_form, const WindowBox& saved, bool& not_first_run)
{
    if (!not_first_run) {
        Place_Form(Placement::First_Run, form, main_form);
        not_first_run = true;
    } else if (saved.Width >= 1) {
        form.Top = saved.Top;
        form.Left = saved.Left;
        form.Width = saved.Width;
        form.Height = saved.Height;
        // Minimised it would be out of sight.
        form.Window_State = saved.MM == 2 ? 2 : 0;
    }
}

WindowBox Viewer_Box(const Form_Place& form)
{
    return {.Top = form.Top,
            .Left = form.Left,
            .Width = form.Width,
            .Height = form.Height,
            .MM = form.Window_State,
            .HasBox = form.Height >= 2};
}
