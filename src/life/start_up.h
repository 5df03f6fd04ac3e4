#pragma once

#include "support/input.h"

class Instance_Lock;
struct Program;

/// From the start of the program to a main form that is ready, and from there to its end.

/// Steps up to the settings: the form's place and captions, the settings file (written first if there is none), all
/// options. Settings.App_Folder must be set; it is made at need. Form.Screen and the size in Form.Place should be set
/// where there is a screen; without a size none is stored, and the first window is centred. In a dry run nothing is
/// written: a missing settings file is read as it would have been. Run_Time_Error for a settings file that can't be
/// read.
void Load_Settings(Program& program);

/// Load_Settings and all that follows without a child process: folders, languages, captions. Discover_Tools is to come
/// next; a window shows itself in between. `lock` holds App_Folder for one window; null where several programs may
/// share it. False: another window has the folder; it was called to the front and the operator told, nothing else was
/// done, and this program should end.
bool Load_Form(Program& program, Instance_Lock* lock);

/// Load_Form, then Discover_Tools.
bool Start_Up(Program& program, Instance_Lock* lock);

/// The main form was activated. One that never stood anywhere is centred on the screen; from now on the option rules
/// act.
void First_Activation(Program& program);

/// What asked the main form to close.
enum class Close_Reason
{
    Close_Box, ///< the window's own box: always refused
    Other      ///< the menu, the picture button, Alt+F4, the desktop
};

/// Whether the main form may close; refused while a run goes on. If it may, the settings are written.
bool Query_Unload(Program& program, Close_Reason reason = Close_Reason::Other);
/// The main form is gone: the rules stop working, and the views of all other forms unload.
void Unload(Program& program);

/// mnu_Quit, "E&xit this program       Alt + F4".
void mnu_Quit_Click(Program& program);
/// The picture button that ends the program.
void img_Quit_Click(Program& program);

/// A key on the main form: F12 centres it, Alt+F4 unloads it, both only while no run goes on; Escape halts a run.
void Form_Key_Down(Program& program, const Key_Press& key);

/// True if that key closes a secondary form: Escape.
bool Esc_Closes(const Key_Press& key);
