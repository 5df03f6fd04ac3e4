#include "run/video_muxing.h"

#include "run/careful_share.h"
#include "run/careful_walk.h"
#include "state/program.h"
#include "support/death_words.h"
#include "support/long_path.h"
#include "support/paths.h"
#include "support/system_identification.h"
#include "support/text.h"
#include "support/whole_file.h"
#include "tools/tool_runner.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// What is kept of mkvmerge's words; a tool that never stops talking must not fill the memory.
static constexpr qsizetype Most_Words = 8'000'000;

/// The command's arguments with the names that stand in the working folder in the place of the final ones.
static QStringList Working_Arguments(const Video_Work& work)
{
    const Program& program = work.Prog;
    QStringList arguments = program.Run.Mkvmerge_Arguments.Arguments();
    arguments[arguments.indexOf(u"--output"_s) + 1] = Path_For_Tool(Working_Output(work));
    if (!program.Run.Video.Chapter_Xml.isEmpty()) {
        Write_Whole_File(Working_Chapters(work), program.Run.Video.Chapter_Xml);
        arguments[arguments.lastIndexOf(u"--chapters"_s) + 1] = Path_For_Tool(Working_Chapters(work));
    }
    return arguments;
}

static void Take_Line(Video_Work& work, const QString& line)
{
    const QString mark = u"Progress: "_s;
    if (line.startsWith(mark)) {
        const int percent = std::clamp(static_cast<int>(Number_Prefix(line.mid(mark.size()))), 0, 100);
        work.Walk.Run.Calls.Post([&work, percent] { Show_Percent(work, percent); });
    } else if (work.Words.size() < Most_Words) {
        work.Words += With_Final_Names(work, line) + u'\n';
    }
}

/// What mkvmerge printed, a line each; a name stays on its line, whatever it holds.
static QStringList Lines_Said(const Video_Work& work)
{
    return With_Names_On_One_Line(work.Words, work.Prog.Run.Mkvmerge_Arguments.Arguments())
        .split(u'\n', Qt::SkipEmptyParts);
}

/// How mkvmerge ended, where that wasn't well: its own first words, if it had some.
static QString Why_It_Failed(int exit, const QStringList& said)
{
    QString end =
        exit < 0 ? u"mkvmerge was ended by "_s + What_Ended(exit) : u"mkvmerge ended with status %1"_s.arg(exit);
    for (const QString& line : said)
        if (line.startsWith("Error:"_L1))
            return end + u": "_s + line.mid(6).trimmed();
    return end;
}

bool Mux(Video_Work& work)
{
    Program& program = work.Prog;
    Run_State& run = program.Run;
    program.Logs.Log_Console.Clear();
    Run_Mkvmerge_Lines(program, program.Tools.System_MKVMerge_Path, Working_Arguments(work),
                       [&work](const QString& line) { Take_Line(work, line); });
    const QStringList said = Lines_Said(work);
    for (const QString& line : said)
        program.Logs.Log_Console.AppendLine(line);
    work.Outcome.Exit = run.Exit_Status.value_or(-1);
    if (run.Halt_Requested)
        return Halted(work);
    Note_Start_Of_Tool(work);
    if (run.Pipe_Result == 0 || run.Process_Result != -1)
        return Fail(work, u"mkvmerge couldn't be started: "_s + Format_System_Error(run.Process_Result));
    if (!run.Exit_Status)
        return Fail(work, u"it isn't known how mkvmerge ended"_s);
    return work.Outcome.Exit == 0 || work.Outcome.Exit == 1 ? true : Fail(work, Why_It_Failed(work.Outcome.Exit, said));
}
