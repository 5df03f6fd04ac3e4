#include "run/video_work.h"

#include "run/careful_walk.h"
#include "state/program.h"
#include "support/shown_text.h"

using namespace Qt::StringLiterals;

QString Working_Output(const Video_Work& work)
{
    return work.Walk.Working.Path() + u"output.mkv"_s;
}

QString Working_Chapters(const Video_Work& work)
{
    return work.Walk.Working.Path() + u"chapters.xml"_s;
}

bool Give_Up(Video_Work& work, File_Outcome::Kind status, const QString& reason)
{
    work.Outcome.Status = status;
    work.Outcome.Reason = reason.simplified();
    return false;
}

bool Fail(Video_Work& work, const QString& reason)
{
    return Give_Up(work, File_Outcome::Kind::Failed, reason);
}

bool Halted(Video_Work& work)
{
    return Give_Up(work, File_Outcome::Kind::Not_Run, u"the run was halted"_s);
}

void Warn(Video_Work& work, const QString& warning)
{
    work.Outcome.Warnings += warning.simplified();
}

bool Goes_To_Trash(const Video_Work& work)
{
    return work.Walk.Prog.Options.Delete_Video_After && !work.Split;
}

void Note_Start_Of_Tool(Video_Work& work)
{
    const Run_State& run = work.Walk.Prog.Run;
    work.Tool_Was_Asked = true;
    work.Tool_Not_Started = work.Tool_Not_Started || run.Pipe_Result == 0 || run.Process_Result != -1;
}

QString With_Final_Names(const Video_Work& work, QString line)
{
    const Program& program = work.Walk.Prog;
    if (line.contains(work.Walk.Working.Path())) {
        // Without the extension: ahead of it a piece has its number.
        line.replace(Working_Output(work).chopped(4), As_One_Line(work.Outcome.Output.chopped(4)));
        line.replace(Working_Chapters(work), As_One_Line(program.Run.Video.Chapter_Text));
    }
    return line;
}
