#include "rules/folder_changes.h"

#include "rules/folder_table.h"
#include "rules/folders.h"
#include "rules/option_rules.h"
#include "rules/recent_folders.h"
#include "support/drop_data.h"
#include "support/paths.h"

using namespace Qt::StringLiterals;

bool Folder_Of_File(QString& path)
{
    const bool is_file = File_Exists(path);
    path = is_file ? Folder_Of(path) : QString();
    return is_file;
}

bool Drop_Folder(const Drop_Data& data, bool allowed, QString& path)
{
    path.clear();
    if (!allowed || !data.Has_File_List)
        return false;
    path = data.Paths.value(0);
    if (!Folder_Exists(path))
        Folder_Of_File(path);
    path = With_Separator(path);
    return true;
}

bool Drop_File(const Drop_Data& data, bool allowed, QString& path)
{
    path.clear();
    if (!allowed || !data.Has_File_List || !File_Exists(data.Paths.value(0)))
        return false;
    path = data.Paths.constFirst();
    return true;
}

/// Asks for a folder, starting at `path` or, while that is not set, at the program's; empty: cancelled.
static QString Browse_For(Program& program, const QString& path, const QString& title)
{
    const QString chosen = program.Person.Pick_Folder(title, path.isEmpty() ? program.Settings.App_Folder : path);
    return With_Separator(chosen);
}

static void Drop_On_Main_Folder(Program& program, const Main_Folder& folder, const Drop_Data& data)
{
    if (program.Run.Run_In_Progress)
        return;
    QString dropped;
    Drop_Folder(data, true, dropped);
    if (Path_Exists(dropped)) {
        // Deliberate: a drop puts the old path into the recent list, a browse the new one. Dropped onto an unset path
        // it leaves an empty item there, which the next save drops. A target that is the source is taken here, and
        // emptied by the next check.
        QString& path = program.Options.*folder.Path;
        QStringList& recent = program.Settings.*folder.Recent;
        const QString old = path;
        path = dropped;
        Forget_Last_Run(program.Form);
        (program.Form.*folder.Shown).Caption = path;
        (program.Form.*folder.Fault).Caption.clear();
        Remove_Recent_Folder(recent, path);
        Remove_Recent_Folder(recent, old);
        Insert_Recent_Folder(recent, old);
    } else {
        int code = folder.Error_Code;
        Show_Path_Error(program, code);
    }
    Test_Run_Button(program); // Deliberate: though a tool may be missing; the run looks for it again.
    Default_Run(program);
}

void Drop_On_Videos_Panel(Program& program, const Drop_Data& data)
{
    Drop_On_Main_Folder(program, Videos_Folder(), data);
}

void Drop_On_Target_Panel(Program& program, const Drop_Data& data)
{
    Drop_On_Main_Folder(program, Target_Folder(), data);
}

static void Drop_On_Companion_Folder(Program& program, const Companion_Folder& folder, const Drop_Data& data)
{
    if (program.Run.Run_In_Progress)
        return;
    QString& path = program.Options.*folder.Path;
    Drop_Folder(data, true, path);
    Forget_Last_Run(program.Form);
    if (Check_Paths(program, folder.Word)) {
        (program.Form.*folder.Shown).Caption = path;
    } else {
        int code = folder.Error_Code;
        Show_Path_Error(program, code);
    }
    Default_Run(program);
}

void Drop_On_Audio_Panel(Program& program, const Drop_Data& data)
{
    Drop_On_Companion_Folder(program, Companion_Folders()[0], data);
}

void Drop_On_Subs_Panel(Program& program, const Drop_Data& data)
{
    Drop_On_Companion_Folder(program, Companion_Folders()[1], data);
}

void Drop_On_Chapters_Panel(Program& program, const Drop_Data& data)
{
    Drop_On_Companion_Folder(program, Companion_Folders()[2], data);
}

/// Browses for the source or the target. False: cancelled.
static bool Browse_Main_Folder(Program& program, const Main_Folder& folder)
{
    QString& path = program.Options.*folder.Path;
    Label& shown = program.Form.*folder.Shown;
    const QString chosen = Browse_For(program, path, folder.Title);
    if (chosen.isEmpty()) {
        if (shown.Caption.isEmpty()) {
            // Deliberate: the target's label speaks of the video path too.
            (program.Form.*folder.Fault).Caption = u"Video Path Not Set"_s;
            (program.Form.*folder.Fault).Visible = true;
        }
        return false;
    }
    path = chosen;
    Forget_Last_Run(program.Form);
    shown.Caption = path;
    (program.Form.*folder.Fault).Caption.clear(); // it would say "Not Set" beside the path
    QStringList& recent = program.Settings.*folder.Recent;
    Remove_Recent_Folder(recent, path);
    Insert_Recent_Folder(recent, path);
    return true;
}

void mnu_PopupVideoBrowse1_Click(Program& program)
{
    if (Browse_Main_Folder(program, Videos_Folder()))
        Follow_Folders(program);
}

void mnu_PopupTargetBrowse1_Click(Program& program)
{
    if (!Browse_Main_Folder(program, Target_Folder()))
        return;
    if (Same_Folder(program.Options.Path_Target, program.Options.Path_Videos))
        program.Options.Path_Target.clear();
    Check_Paths(program, u"VideosPath"_s);
    Check_Paths(program, u"TargetPath"_s);
    Follow_Folders(program);
}

static void Browse_Companion_Folder(Program& program, const Companion_Folder& folder)
{
    // Deliberate: nothing is checked here, so the "Empty" mark stays as it was until the next check.
    QString& path = program.Options.*folder.Path;
    const QString chosen = Browse_For(program, path, folder.Title);
    if (chosen.isEmpty())
        return;
    path = chosen;
    Forget_Last_Run(program.Form);
    (program.Form.*folder.Shown).Caption = path;
    (program.Form.*folder.Fault).Caption.clear();
}

void mnu_PopupAudioBrowse1_Click(Program& program)
{
    Browse_Companion_Folder(program, Companion_Folders()[0]);
}

void mnu_PopupSubsBrowse1_Click(Program& program)
{
    Browse_Companion_Folder(program, Companion_Folders()[1]);
}

void mnu_PopupChapsBrowse1_Click(Program& program)
{
    Browse_Companion_Folder(program, Companion_Folders()[2]);
}
