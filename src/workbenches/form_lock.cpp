#include "workbenches/form_lock.h"

#include "state/main_form.h"

static void Enable_Menus(Main_Form& form, bool enabled)
{
    for (Menu_Item* menu : {&form.mnu_File, &form.mnu_Process_Log, &form.mnu_Settings, &form.mnu_HiThere1})
        menu->Enabled = enabled;
}

void Lock_Main_Form(Main_Form& form)
{
    form.fram_WholeForm.Enabled = false;
    Enable_Menus(form, false);
}

void Unlock_Main_Form(Main_Form& form)
{
    form.btn_Halt.Enabled = false;
    Enable_Menus(form, true);
    form.fram_WholeForm.Enabled = true;
}
