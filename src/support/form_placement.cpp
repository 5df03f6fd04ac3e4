#include "support/form_placement.h"

#include <algorithm>

void Place_Form(Placement placement, Form_Place& form, const Form_Place& main_form, bool placed)
{
    form.Window_State = 0;
    if (placement == Placement::First_Run && placed)
        return;
    if (placement == Placement::Over_Main_Form) {
        form.Width = main_form.Width;
        form.Height = main_form.Height;
    }
    form.Left = main_form.Left + (main_form.Width - form.Width) / 2;
    form.Top = main_form.Top + (main_form.Height - form.Height) / 2;
}

void Ensure_Visible(Form_Place& form, const Form_Place& screen)
{
    if (form.Window_State != 0)
        return;
    form.Left = std::max(screen.Left, std::min(form.Left, screen.Left + screen.Width - form.Width));
    form.Top = std::max(screen.Top, std::min(form.Top, screen.Top + screen.Height - form.Height));
}
