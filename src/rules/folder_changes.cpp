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

static void Drop_On_Main_Folder(Program& program, const Main_Folder& folder, const Drop_Data& data)
{
    if (program.Run.Run_In_Progress)
        return;
    QString dropped;
    Drop_Folder(data, true, dropped);
    if (Path_Exists(dropped)) {
        // Deliberate: a drop puts the old path into the recent list, a browse the new one. Dropped onto an unset path
        // it leaves an empty item there, which the next save drops. A target that is the source is taken here,
        // told, and emptied by the next check.
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
    Tell_Same_Folder(program);
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

static void Choose_Main_Folder(Program& program, const Main_Folder& folder, const QString& chosen)
{
    QString& path = program.Options.*folder.Path;
    path = chosen;
    Forget_Last_Run(program.Form);
    (program.Form.*folder.Shown).Caption = path;
    (program.Form.*folder.Fault).Caption.clear(); // it would say "Not Set" beside the path
    QStringList& recent = program.Settings.*folder.Recent;
    Remove_Recent_Folder(recent, path);
    Insert_Recent_Folder(recent, path);
}

static void Choose_Companion_Folder(Program& program, const Companion_Folder& folder, const QString& chosen)
{
    // Deliberate: nothing is checked here, so the "Empty" mark stays as it was until the next check.
    program.Options.*folder.Path = chosen;
    Forget_Last_Run(program.Form);
    (program.Form.*folder.Shown).Caption = chosen;
    (program.Form.*folder.Fault).Caption.clear();
}

void Choose_Folder(Program& program, Folder_Box box, const QString& folder)
{
    switch (box) {
    case Folder_Box::Videos:
        Choose_Main_Folder(program, Videos_Folder(), folder);
        Tell_Same_Folder(program);
        Follow_Folders(program);
        break;
    case Folder_Box::Target:
        Choose_Main_Folder(program, Target_Folder(), folder);
        Check_Paths(program, u"VideosPath"_s);
        Check_Paths(program, u"TargetPath"_s); // one that is the source is emptied
        Follow_Folders(program);
        break;
    default:
        Choose_Companion_Folder(program, Companion_Folder_Of(box), folder);
    }
}

/// The nearest folder on the way to `path` that is there; empty: not even the root is, as no path was given.
static QString Nearest_Folder(QString path)
{
    while (!path.isEmpty() && !Folder_Exists(path))
        path.truncate(path.lastIndexOf(Path_Separator, -2) + 1);
    return path;
}

/// Asks for a folder, beginning where the box points, else where it was looked last, the first time at the program's
/// folder. Empty: cancelled.
static QString Browse_For(Program& program, const QString& path, const QString& title)
{
    QString start = Nearest_Folder(path.isEmpty() ? program.Form.Picked_Last : path);
    if (start.isEmpty())
        start = program.Settings.App_Folder;
    QString chosen = With_Separator(program.Person.Pick_Folder(title, start));
    if (!chosen.isEmpty())
        program.Form.Picked_Last = chosen;
    return chosen;
}

static void Browse_Main_Folder(Program& program, Folder_Box box, const Main_Folder& folder)
{
    const QString chosen = Browse_For(program, program.Options.*folder.Path, folder.Title);
    if (!chosen.isEmpty()) {
        Choose_Folder(program, box, chosen);
    } else if ((program.Form.*folder.Shown).Caption.isEmpty()) {
        // Deliberate: the target's label speaks of the video path too.
        (program.Form.*folder.Fault).Caption = u"Video Path Not Set"_s;
        (program.Form.*folder.Fault).Visible = true;
    }
}

static void Browse_Companion_Folder(Program& program, Folder_Box box)
{
    const Companion_Folder& folder = Companion_Folder_Of(box);
    const QString chosen = Browse_For(program, program.Options.*folder.Path, folder.Title);
    if (!chosen.isEmpty())
        Choose_Folder(program, box, chosen);
}

void mnu_PopupVideoBrowse1_Click(Program& program)
{
    Browse_Main_Folder(program, Folder_Box::Videos, Videos_Folder());
}

void mnu_PopupTargetBrowse1_Click(Program& program)
{
    Browse_Main_Folder(program, Folder_Box::Target, Target_Folder());
}

void mnu_PopupAudioBrowse1_Click(Program& program)
{
    Browse_Companion_Folder(program, Folder_Box::Audio);
}

void mnu_PopupSubsBrowse1_Click(Program& program)
{
    Browse_Companion_Folder(program, Folder_Box::Subtitles);
}

void mnu_PopupChapsBrowse1_Click(Program& program)
{
    Browse_Companion_Folder(program, Folder_Box::Chapters);
}
