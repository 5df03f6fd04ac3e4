#include "logs/process_log.h"

#include "logs/log_rotation.h"
#include "logs/log_sections.h"
#include "logs/log_work_file.h"
#include "state/program.h"
#include "support/folder_lock.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/text.h"

#include <QLocale>

using namespace Qt::StringLiterals;

static void Clear_Buffers(Log_Buffers& logs)
{
    logs.Log_Results.Clear();
    logs.Log_Faults.Clear();
    logs.Log_Console.Clear();
}

/// Waits up to a minute for another program that writes its entry into the same folder.
static void Lock_Folder(Folder_Lock& lock, const QString& folder, Operator& person)
{
    constexpr int pause = 50;
    constexpr int longest_wait = 60'000;
    for (int waited = 0; !lock.Try(folder); waited += pause) {
        if (waited >= longest_wait)
            throw Run_Time_Error(Error_Number::Permission_Denied, u"Locking the program's folder"_s, folder, {},
                                 u"Another program has been writing there for a minute: end it and try again."_s);
        person.Wait_With_Events(pause);
    }
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

/// Puts the new log together in the work file. True if the old log's text was carried along: then it still has its
/// name; else it is a generation, and may have the name as well.
static bool Write_Work_File(Program& program, const QString& log)
{
    const QString& folder = program.Settings.App_Folder;
    Log_Work_File work(Process_Log_Work_Path(folder));
    work.Append(Log_Entry(program).toUtf8());
    work.Flush_To_Disk();
    if (!File_Exists(log))
        return false;
    if (!program.Options.mnu_AppendLogs &&
        Rotate_Logs(folder, Log_Name::Kept_For_Replacing, program.Person, program.Logs.Log_Faults) == Rotation::Rotated)
        return false;
    work.Append(Line_Break.toUtf8());
    work.Append_File(log);
    work.Flush_To_Disk();
    return true;
}

static void Replace_Log(Program& program)
{
    const QString& folder = program.Settings.App_Folder;
    const QString log = Process_Log_Path(folder);
    Folder_Lock lock;
    Lock_Folder(lock, folder, program.Person);
    const bool carried = Write_Work_File(program, log);
    program.Person.Pump_Events();
    // Deliberate: the old log goes to the trash although its text was carried along.
    if (carried)
        Trash_Replaced_Log(folder, program.Logs.Log_Faults);
    Rename_Log(Process_Log_Work_Path(folder), log);
}

bool Write_Process_Log(Program& program)
{
    if (!program.Run.Dry_Run) {
        program.Logs.Write_Failed = true;
        Replace_Log(program);
        program.Logs.Write_Failed = false;
    }
    Clear_Buffers(program.Logs);
    return true;
}

bool Rotate_Process_Logs(Program& program)
{
    if (program.Run.Dry_Run)
        return File_Exists(Process_Log_Path(program.Settings.App_Folder));
    Folder_Lock lock;
    Lock_Folder(lock, program.Settings.App_Folder, program.Person);
    return Rotate_Logs(program.Settings.App_Folder, Log_Name::Freed, program.Person, program.Logs.Log_Faults) !=
           Rotation::No_Log;
}
