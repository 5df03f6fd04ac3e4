#include "tools/tool_runner.h"

#include "state/program.h"
#include "support/command_line.h"
#include "support/console_text.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/text.h"
#include "tools/failure_reports.h"
#include "tools/kill_mkvmerge.h"
#include "tools/message_lines.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>

using namespace Qt::StringLiterals;

static constexpr std::size_t Capture_Bytes = 10240;
static constexpr std::size_t Fresh_Bytes = 30720;
static constexpr std::size_t Mkvmerge_Bytes = 10240;
static constexpr int Wait_After_Kill = 1200;
/// Milliseconds that a capture has from a halt on to end by itself.
static constexpr int Grace_After_Halt = 1000;
/// Chunks up to this length are no messages worth keeping.
static constexpr qsizetype Longest_Dropped_Chunk = 16;
/// mkvmerge prints "Progress: " ahead of the number.
static constexpr qsizetype Characters_Before_Percent = 10;
/// Bytes of a progress chunk that are looked at: no number that a double can hold is longer.
static constexpr qsizetype Progress_Head = 1024;

/// What a halt does to a child that still prints or is silent.
enum class On_Halt
{
    Let_It_End,
    Kill_It
};

/// A tool that isn't started because of a halt has not failed.
static void Note_Nothing_Started(Run_State& run)
{
    run.Exit_Status.reset();
    run.Pipe_Result = 1;
    run.Process_Result = -1;
}

/// Starts the child and notes how that went where the callers look for it.
static bool Start_Child(Run_State& run, Child_Process& child, const QString& executable, const QStringList& arguments)
{
    run.Exit_Status.reset();
    const Child_Process::Started started = child.Start(executable, arguments);
    run.Pipe_Result = started == Child_Process::Started::No_Pipe ? 0 : 1;
    // For a pipe too: the report that follows quotes the system's words.
    run.Process_Result = started == Child_Process::Started::Yes ? -1 : child.System_Error();
    return started == Child_Process::Started::Yes;
}

/// The halt of an mkvmerge run. Its own child goes first, so that it's gone even where nothing is killed by name.
static void Kill_Mkvmerge(Program& program, Child_Process& child, const QString& executable)
{
    child.Kill();
    if (program.Run.Careful)
        return;
    if (program.Run.Kill_By_Name)
        Kill_By_Executable_Name(executable);
    program.Person.Wait_With_Events(Wait_After_Kill);
}

/// What becomes of a chunk, just as a read delivered it; the text is the run's own.
using Take_Chunk = std::function<void(QByteArrayView bytes, Console_Text& text)>;

bool Tools_Are_To_End(const Program& program)
{
    return program.Run.Halt_Requested || program.Form.Closing;
}

/// A capture that a halt meets may end by itself, but one that hangs, or never stops printing, is not waited for.
class Grace
{
  public:
    /// True once the time since the halt is over.
    bool Is_Over(const Program& program)
    {
        if (Tools_Are_To_End(program) && !since_halt_.isValid())
            since_halt_.start();
        return since_halt_.isValid() && since_halt_.hasExpired(Grace_After_Halt);
    }

  private:
    QElapsedTimer since_halt_;
};

/// Hands the child's chunks to `take` until its pipe is closed. False if it has to be ended instead.
static bool Read_All(Program& program, Child_Process& child, std::size_t most, On_Halt on_halt, const Take_Chunk& take)
{
    Console_Text text;
    QByteArray bytes;
    Grace grace;
    for (;;) {
        program.Person.Pump_Events();
        const Child_Process::Read read = child.Read_Chunk(bytes, most);
        if (read == Child_Process::Read::Ended)
            return true;
        if (read == Child_Process::Read::Data)
            take(bytes, text);
        if (on_halt == On_Halt::Kill_It ? program.Run.Halt_Requested : grace.Is_Over(program))
            return false;
    }
}

/// One run of a tool, whose output goes to `take`.
static void Run_Tool(Program& program, const QString& executable, const QStringList& arguments, std::size_t most,
                     On_Halt on_halt, const Take_Chunk& take)
{
    if (on_halt == On_Halt::Let_It_End && Tools_Are_To_End(program)) {
        Note_Nothing_Started(program.Run);
        return;
    }
    // An error that unwinds through here kills and reaps the child.
    Child_Process child;
    if (!Start_Child(program.Run, child, executable, arguments))
        return;
    bool ended = Read_All(program, child, most, on_halt, take);
    // A child that has closed its output and runs on is waited for until a halt.
    if (ended)
        ended = child.Wait([&program] {
            program.Person.Pump_Events();
            return !Tools_Are_To_End(program);
        });
    if (!ended && on_halt == On_Halt::Kill_It)
        Kill_Mkvmerge(program, child, executable);
    else if (!ended)
        child.Kill();
    program.Run.Exit_Status = child.Exit_Status();
}

void Run_Tool_Capture(Program& program, const QString& executable, const Command_Line& command, QString& output)
{
    Run_Tool(program, executable, command.Arguments(), Capture_Bytes, On_Halt::Let_It_End,
             [&output](QByteArrayView bytes, Console_Text& text) { output += text.Decode(bytes); });
}

void Run_Tool_Capture_Fresh(Program& program, const QString& executable, const Command_Line& command, QString& output)
{
    output.clear();
    Run_Tool(program, executable, command.Arguments(), Fresh_Bytes, On_Halt::Let_It_End,
             [&output](QByteArrayView bytes, Console_Text& text) { output += text.Decode(bytes); });
}

/// A value of the percentage's 16-bit arithmetic, rounded half to even. Deliberate: the limit of 327 videos ends the
/// program, in the middle of a file.
static int Checked_Percent(const Run_State& run, double value)
{
    const double rounded = std::nearbyint(value);
    if (rounded < INT16_MIN || rounded > INT16_MAX)
        throw Run_Time_Error(Error_Number::Overflow, u"Working out the percentage while writing"_s, run.Output_Path, {},
                             u"That file is only half written: delete it. More than 327 videos at a time can't be "
                             u"counted: move some to another folder."_s);
    return static_cast<int>(rounded);
}

/// True if the word "progress" stands in the text, in any case. Looks for its rarest letter.
static bool Holds_Progress(QByteArrayView bytes)
{
    constexpr QByteArrayView word = "progress";
    constexpr qsizetype place = 3;
    for (const char letter : {'g', 'G'})
        for (qsizetype at = bytes.indexOf(letter); at >= 0; at = bytes.indexOf(letter, at + 1))
            if (at >= place && at - place + word.size() <= bytes.size() &&
                bytes.sliced(at - place, word.size()).compare(word, Qt::CaseInsensitive) == 0)
                return true;
    return false;
}

QStringList Names_Of_Several_Lines(const QStringList& arguments)
{
    QStringList names;
    for (const QString& name : arguments)
        if (As_One_Line(name) != name)
            names += name;
    return names;
}

QString With_Names_On_One_Line(QString words, const QStringList& names)
{
    for (const QString& name : Names_Of_Several_Lines(names)) {
        QString printed = name;
        printed.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        words.replace(printed, As_One_Line(name));
    }
    return words;
}

/// mkvmerge prints names as they are. One of the command that holds a line break would make lines of the log.
static QString With_Whole_Names(const QString& chunk, const QStringList& names)
{
    QString text = chunk;
    for (const QString& name : names) {
        // As Console_Text has made it of what came through the pipe.
        QString printed = name;
        printed.replace(Line_Break, u"\n"_s).replace(u"\n"_s, Line_Break);
        text.replace(printed, As_One_Line(name));
    }
    return text;
}

/// Keeps a chunk of mkvmerge's output, or drives the percentage with it. A chunk that isn't kept is never made text of.
///
/// Deliberate: the whole chunk goes, whatever else it holds, if it speaks of progress or names the program's folder;
/// for a program in "/" that is every chunk. A video called "Work in progress" loses its messages and shows 0 %.
static void Take_Mkvmerge_Chunk(Program& program, const QStringList& names, const QByteArray& own_folder,
                                QByteArrayView bytes, Console_Text& text)
{
    if (Holds_Progress(bytes)) {
        const QByteArrayView head = bytes.first(std::min(bytes.size(), Progress_Head));
        const double percent = Number_Prefix(text.Decode(head).mid(Characters_Before_Percent));
        text.Skip(bytes.sliced(head.size()));
        Show_Progress(program, Checked_Percent(program.Run, percent), 0);
    } else if (bytes.contains(own_folder)) {
        text.Skip(bytes);
    } else if (const QString& chunk = text.Decode(bytes); chunk.size() > Longest_Dropped_Chunk) {
        program.Logs.Log_Console.AppendLine(With_Whole_Names(chunk, names));
    }
}

void Run_Mkvmerge(Program& program, const QString& executable, const Command_Line& command)
{
    QByteArray own_folder = program.Settings.App_Folder.toUtf8();
    own_folder.chop(1);
    const QStringList names = Names_Of_Several_Lines(command.Arguments());
    Message_Lines messages;
    Run_Tool(program, executable, command.Arguments(), Mkvmerge_Bytes, On_Halt::Kill_It,
             [&program, &names, &own_folder, &messages](QByteArrayView bytes, Console_Text& text) {
                 messages.Take(bytes);
                 Take_Mkvmerge_Chunk(program, names, own_folder, bytes, text);
             });
    messages.End();
    program.Run.Tool_Error = messages.First_Error;
    program.Run.Tool_Warnings = messages.Warnings;
    program.Run.Tool_Last_Line = messages.Last_Line;
}

/// Hands out the whole lines of a text that comes in pieces; each ends in CR, LF or both.
static void Take_Lines(QString& rest, const QString& text, const std::function<void(const QString& line)>& take)
{
    static const QRegularExpression line_end(u"\\r\\n|\\r|\\n"_s);
    rest += text;
    QStringList lines = rest.split(line_end);
    rest = lines.takeLast();
    for (const QString& line : lines)
        take(line);
}

void Run_Mkvmerge_Lines(Program& program, const QString& executable, const QStringList& arguments,
                        const std::function<void(const QString& line)>& take)
{
    QString rest;
    Run_Tool(program, executable, arguments, Mkvmerge_Bytes, On_Halt::Kill_It,
             [&](QByteArrayView bytes, Console_Text& text) { Take_Lines(rest, text.Decode(bytes), take); });
    if (!rest.isEmpty())
        take(rest);
}

void Show_Fraction(Program& program, const QString& source, int percent, double fraction)
{
    const int overall = static_cast<int>(std::nearbyint(fraction * 100));
    program.Form.Progress = Progress_Look::Running;
    program.Form.lbl_ProgressFinished.Visible = true;
    program.Form.lbl_ProgressFinished.Caption = QString::number(overall) + u'%';
    program.Person.Pump_Events();
    program.Person.Pump_Events();
    program.Form.Progress_Fraction = fraction;
    if (program.Listener)
        program.Listener->Progress(source, percent, overall);
}

void Show_Progress(Program& program, int percent, int total)
{
    if (percent < 0)
        return;
    const Run_State& run = program.Run;
    if (total < 1)
        total = Checked_Percent(run, static_cast<double>(run.Video_File_List.size()) * 100);
    const int reached = Checked_Percent(run, Checked_Percent(run, run.File_Index * 100) + percent);
    const double fraction = static_cast<double>(reached) / total;
    Checked_Percent(run, fraction * 100);
    Show_Fraction(program, run.Source_In_Work, percent, fraction);
}
