#pragma once

struct Main_Form;

/// The main form while a run goes on: its options and its menus are out of reach. Where the menu band is covered and
/// the whole panel moves up to cover it is the view's business; it follows fram_WholeForm.
void Lock_Main_Form(Main_Form& form);

/// Gives options and menus back after a run, and takes btn_Halt away.
void Unlock_Main_Form(Main_Form& form);
