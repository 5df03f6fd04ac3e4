#include "logs/process_log.h"

#include "logs/log_rotation.h"
#include "logs/log_sections.h"
#include "logs/log_work_file.h"
#include "state/program.h"
#include "support/folder_lock.h"
#include "support/paths.h"
#include "support/plain_file.h"
#include "support/run_time_error.h"
#include "support/text.h"
#include "support/whole_file.h"

#include <QFile>
#include <QLocale>
#include <optional>

using namespace Qt::StringLiterals;

static void Clear_Buffers(Log_Buffers& logs)
{
    logs.Log_Results.Clear();
    logs.Log_Faults.Clear();
    logs.Log_Console.Clear();
}

/// Waits for another program that writes its entry into the same folder: up to a minute, and up to a second once a
/// halt is asked for. False: the folder is held still.
static bool Lock_Folder(Folder_Lock& lock, const Program& program)
{
    constexpr int pause = 50;
    constexpr int longest_wait = 60'000;
    constexpr int longest_wait_of_a_halt = 1'000;
    for (int waited = 0; !lock.Try(program.Settings.App_Folder); waited += pause) {
        const bool halted = program.Run.Halt_Requested || program.Person.Is_Asked_To_Stop();
        if (waited >= (halted ? longest_wait_of_a_halt : longest_wait))
            return false;
        program.Person.Wait_With_Events(pause);
    }
    return true;
}

static QString Header(const Program& program)
{
    return u"This entry generated on - "_s + QLocale::c().toString(program.Now(), u"MMM/dd/yyyy hh:mm:ss AP"_s) +
           u" local time by "_s + program.Settings.Version_Banner + u" :: Log verbosity="_s +
           QString::number(program.Options.Log_Verbosity);
}

QString Log_Entry(const Program& program)
{
    const QString head_indent(8, u' ');
    QStringList lines{Header(program)};
    if (program.Options.Log_Verbosity >= 4)
        lines << head_indent + u"[Menu Selections]"_s << Menu_Selection_Lines(program);
    if (program.Options.Log_Verbosity >= 3)
        lines << head_indent + u"[Active Checkboxes]"_s << Active_Checkbox_Lines(program) << QString();
    for (const QString& line : Split_Text(program.Logs.Log_Results.ToString(), Line_Break))
        if (!line.isEmpty() && line != u"@"_s)
            lines << line;
    lines << QString();
    if (program.Run.Halt_Requested)
        lines << head_indent + u"*** Process halted before finishing!"_s << QString();
    lines << QString();
    return lines.join(Line_Break) + Line_Break;
}

/// Keeps an entry that can't go into the log now in a file of its own; returns its path.
static QString Keep_Aside(const QString& folder, const QString& entry)
{
    QString path = New_Waiting_Entry_Path(folder);
    Write_Whole_File(path, entry.toUtf8());
    return path;
}

/// Adds to the work file; what stands in it by then is kept.
static void Add_To_Work_File(Log_Work_File& work, const QString& text)
{
    work.Append(text.toUtf8());
    work.Flush_To_Disk();
}

/// Makes the file that holds the work file's text and below it the log's, and gives it the log's name.
static void Put_On_Top_Of_Log(Program& program)
{
    const QString& folder = program.Settings.App_Folder;
    const QString log = Process_Log_Path(folder);
    const QString whole_log = Process_Log_Whole_Path(folder);
    try {
        Log_Work_File whole(whole_log, Log_Work_File::Leftover::Dropped);
        whole.Append_File(Process_Log_Work_Path(folder));
        whole.Append(Line_Break.toUtf8());
        whole.Append_File(log);
        whole.Flush_To_Disk();
    } catch (const Run_Time_Error&) {
        QFile::remove(whole_log);
        throw;
    }
    program.Person.Pump_Events();
    QFile::setPermissions(whole_log, QFile::permissions(log));
    Rename_Log(whole_log, log);
    QFile::remove(Process_Log_Work_Path(folder));
}

/// Puts what the work file holds on top of the log, or in its place. The work file is gone afterwards; until then a
/// process that dies leaves it and the log whole.
static void Put_Work_File_In_Place(Program& program)
{
    const QString& folder = program.Settings.App_Folder;
    const QString log = Process_Log_Path(folder);
    const QString work = Process_Log_Work_Path(folder);
    Require_Plain_Or_Nothing(log, u"Writing the process log (the entry waits in %1)"_s.arg(File_Name_Of(work)));
    if (!File_Exists(log)) {
        program.Person.Pump_Events();
        Rename_Log(work, log);
        return;
    }
    const auto permissions = QFile::permissions(log);
    if (!program.Options.mnu_AppendLogs) {
        clsStringBuilder refused;
        if (Rotate_Logs(folder, Log_Name::Kept_For_Replacing, program.Person, refused) == Rotation::Rotated) {
            program.Person.Pump_Events();
            QFile::setPermissions(work, permissions);
            Rename_Log(work, log);
            return;
        }
        Log_Work_File noted(work, Log_Work_File::Leftover::Kept);
        Add_To_Work_File(noted, refused.ToString() + Line_Break);
    }
    Put_On_Top_Of_Log(program);
}

/// Takes in what other runs left: the work file of one that died, and entries that didn't get at the log.
static void Take_In_Leftovers(Program& program)
{
    const QString& folder = program.Settings.App_Folder;
    const QString log = Process_Log_Path(folder);
    const QString work = Process_Log_Work_Path(folder);
    Require_Plain_Or_Nothing(work, u"Opening the work file of the process log"_s);
    // A run that died behind its last step but one: the log has its entry already.
    if (Is_Plain_File(work) && Is_Plain_File(log) && Begins_With_File(log, work))
        QFile::remove(work);
    for (const QString& name : Waiting_Entries(folder)) {
        if (Is_Plain_File(work))
            Put_Work_File_In_Place(program);
        Rename_Log(folder + name, work);
        Put_Work_File_In_Place(program);
    }
}

static void Add_Entry(Program& program)
{
    const QString& folder = program.Settings.App_Folder;
    const QString entry = Log_Entry(program);
    Folder_Lock lock;
    if (!Lock_Folder(lock, program)) {
        const QString kept = Keep_Aside(folder, entry);
        const QString told =
            u"Another program has been writing the log for a minute. This run's entry is kept in\r\n"_s + kept +
            u"\r\nand goes into the log with the next run's entry."_s;
        // A run that nobody watches waits for nobody.
        if (program.Run.Careful && program.Listener)
            program.Listener->Warned(u"The log is in use."_s, told.simplified());
        else if (!program.Run.Halt_Requested && !program.Person.Is_Asked_To_Stop())
            program.Person.Show_Message({.Title = u"The log is in use."_s, .Text = told});
        return;
    }
    std::optional<Log_Work_File> work;
    try {
        Take_In_Leftovers(program);
        work.emplace(Process_Log_Work_Path(folder), Log_Work_File::Leftover::Kept);
    } catch (const Run_Time_Error&) {
        Keep_Aside(folder, entry);
        throw;
    }
    Add_To_Work_File(*work, entry);
    work.reset();
    Put_Work_File_In_Place(program);
}

bool Write_Process_Log(Program& program)
{
    if (!program.Run.Dry_Run) {
        program.Logs.Write_Failed = true;
        Add_Entry(program);
        program.Logs.Write_Failed = false;
    }
    Clear_Buffers(program.Logs);
    return true;
}

static void Tell_Not_Cleared(Operator& person, const QString& why)
{
    person.Show_Message({.Title = u"The log was not cleared."_s, .Text = u"It stays as it was.\r\n"_s + why});
}

bool Rotate_Process_Logs(Program& program)
{
    const QString& folder = program.Settings.App_Folder;
    const bool exists = File_Exists(Process_Log_Path(folder));
    if (program.Run.Dry_Run)
        return exists;
    Folder_Lock lock;
    if (!Lock_Folder(lock, program)) {
        Tell_Not_Cleared(program.Person, u"Another program has been writing there for a minute. Try again later."_s);
        return exists;
    }
    clsStringBuilder refused;
    if (Rotate_Logs(folder, Log_Name::Freed, program.Person, refused) == Rotation::Refused)
        Tell_Not_Cleared(program.Person,
                         refused.ToString() + u"Make room in the trash, or move that file away, and try again."_s);
    return exists;
}
