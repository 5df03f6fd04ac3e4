#include "support/form_placement.h"

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
