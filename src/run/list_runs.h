#pragma once

#include "run/run_driver.h"

/// What the buttons of the window start: runs over what is ticked in the list, and the check. Each returns when its run
/// has ended and its boxes were answered; the program ends with it if the person wants that (Form.Quit_When_Done) and
/// it wasn't halted. Pressed while another is at work they do nothing, but for what is said here.

/// btn_RunVantorra: all that is ticked. In a check: the check stops, and then the run begins.
Press_Result Run_Ticked(Program& program, const Mouse_Release& release);

/// The menu's item and key for the same; nothing while the button is off.
void mnu_RunVantorra_Click(Program& program);

/// btn_Check: a dry run that fills the list. Pressed in a check it stops it.
void btn_Check_Click(Program& program);

/// btn_RunFailed: what is ticked and failed last.
void btn_RunFailed_Click(Program& program);

/// btn_Continue: what is ticked and isn't done yet.
void btn_Continue_Click(Program& program);

/// What is marked in the list, ticked or not.
void Run_Only_These(Program& program);

/// After every rule: the list follows the videos' folder, and the buttons beside Run what there is to do.
void Keep_List_In_Step(Program& program);

/// Look_Into_Journal, if the options have changed since the last look: called when some time has passed.
void Look_Again(Program& program);
