#include "life/start_up.h"

#include "life/app_folder.h"
#include "life/instance_lock.h"
#include "options/language_table.h"
#include "rules/folders.h"
#include "rules/option_rules.h"
#include "run/halt.h"
#include "settings/settings_store.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/system_identification.h"
#include "support/text.h"
#include "tools/tool_discovery.h"

#include <QDir>

using namespace Qt::StringLiterals;

/// Puts the form into the middle of the screen, its top edge at the given part of the room that is left.
static void Place_On_Screen(Main_Form& form, int parts_above)
{
    form.Place.Left = form.Screen.Left + (form.Screen.Width - form.Place.Width) / 2;
    form.Place.Top = form.Screen.Top + (form.Screen.Height - form.Place.Height) / parts_above;
}

/// False where no window is: the settings file then has a size of 0, and the first window finds its own.
static bool Has_Size(const Form_Place& place)
{
    return place.Width > 0 && place.Height > 0;
}

static void Centre(Main_Form& form)
{
    Place_On_Screen(form, 2);
}

/// The form as it is before any setting was read.
static void Set_Up_Form(Program& program)
{
    Main_Form& form = program.Form;
    form.Closing = false;
    form.Options_Ready = false;
    Get_Bitness(program.Tools.System_Bits);
    if (Has_Size(form.Place))
        Place_On_Screen(form, 3);
    program.Settings.Version_Banner = QStringLiteral("Vantorra ver " VANTORRA_VERSION);
    form.Caption = program.Settings.Version_Banner + QString(16, u' ') + u"Runs a batch of files through MKVmerge"_s;
    program.Options.lbl_ChapsFormat.Caption = u"HH:MM:SS.ff"_s;
    program.Options.Audio_Delay.clear();
}

static void Load_Or_Make_Settings(Program& program)
{
    Settings_State& settings = program.Settings;
    if (!program.Run.Dry_Run)
        QDir().mkpath(settings.App_Folder);
    settings.Ini_File = With_Separator(settings.App_Folder) + Settings_File_Name;
    settings.Save_On_Exit = true;
    if (File_Exists(settings.Ini_File)) {
        Read_Settings(program);
        return;
    }
    settings.First_Run = true;
    // Missing keys mean that an installation of years goes on as it was.
    settings.Extensions.Careful_Batch = true;
    settings.Extensions.Tell_At_The_End = true;
    Ini_Document first;
    Write_Settings_To(program, true, first);
    if (!program.Run.Dry_Run)
        Save_Settings_File(program, first);
    Read_Settings_From(program, first);
}

void Load_Settings(Program& program)
{
    Set_Up_Form(program);
    Load_Or_Make_Settings(program);
    program.Form.Never_Placed = program.Settings.First_Run || !Has_Size(program.Form.Place);
}

static void Set_Captions(Program& program)
{
    program.Attachments_Dialog.lbl_AttachmentsNotes.Caption =
        u"This program allows adding fonts and images (jpg, png) as attachments. Place all the desired files in a "
        "folder then drag and drop the folder into the path box below. All the files found in the folder will be added "
        "as attachments to each video file that is processed.\r\n"
        "Consult the Help File for information on the use and capabilities of the checkbox below."_s;
    program.Settings.OS_Version_Text = Get_OS_Version_Text();
    program.Form.mnu_OSVersion.Caption = u"OS Version - "_s + program.Settings.OS_Version_Text;
}

static void Tell_Window_Is_Open(Program& program)
{
    program.Person.Show_Message(
        {.Title = u"Vantorra is open already"_s,
         .Text = u"Another window works with the folder \""_s + program.Settings.App_Folder + u"\"."_s + Line_Break +
                 u"It comes to the front. A second window needs a folder of its own: set VANTORRA_HOME to it."_s,
         .Icon = Message_Icon::Information});
}

bool Load_Form(Program& program, Instance_Lock* lock)
{
    if (lock != nullptr) {
        QDir().mkpath(program.Settings.App_Folder);
        if (!lock->Take(program.Settings.App_Folder)) {
            lock->Call_Holder();
            Tell_Window_Is_Open(program);
            return false;
        }
    }
    Load_Settings(program);
    Check_Paths(program, u"All"_s);
    Follow_Folders(program); // the check may have emptied one
    Load_Language_Table(program.Language_Table, u"scrap"_s);
    Show_Folder_Panels(program.Options, program.Form);
    Set_Captions(program);
    return true;
}

bool Start_Up(Program& program, Instance_Lock* lock)
{
    if (!Load_Form(program, lock))
        return false;
    Discover_Tools(program);
    return true;
}

void First_Activation(Program& program)
{
    if (program.Form.Never_Placed)
        Centre(program.Form);
    program.Form.Never_Placed = false;
    program.Settings.First_Run = false;
    program.Form.Options_Ready = true;
}

bool Query_Unload(Program& program, Close_Reason reason)
{
    // Deliberate: the window's close box does nothing.
    if (reason == Close_Reason::Close_Box || program.Run.Run_In_Progress)
        return false;
    // A run is about to begin, or just ended: it would go on without a window.
    if (program.Run.Press_In_Work)
        return false;
    Write_Settings(program, false);
    program.Person.Pump_Events();
    if (program.Form.Topmost_On)
        Keep_On_Top(program, false);
    return true;
}

void Unload(Program& program)
{
    program.Form.Closing = true;
}

void mnu_Quit_Click(Program& program)
{
    program.Person.Unload_Main_Form();
}

void img_Quit_Click(Program& program)
{
    if (program.Form.Topmost_On) {
        Keep_On_Top(program, false);
        program.Form.Topmost_On = false;
    }
    program.Person.Unload_Main_Form();
}

void Form_Key_Down(Program& program, const Key_Press& key)
{
    const Key_Modifiers& held = key.Modifiers;
    if (program.Run.Run_In_Progress || program.Run.Press_In_Work) {
        if (key.Code == Key::Escape && held.None())
            Halt_Key(program);
        return;
    }
    if (key.Code == Key::F12 && held.None())
        Centre(program.Form);
    else if (key.Code == Key::F4 && held.Alt && !held.Shift && !held.Control)
        program.Person.Unload_Main_Form();
}

bool Esc_Closes(const Key_Press& key)
{
    return key.Code == Key::Escape;
}
