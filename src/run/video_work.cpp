#include "run/video_work.h"

#include "run/careful_walk.h"
#include "support/shown_text.h"

#include <utility>

using namespace Qt::StringLiterals;

/// The run's program as far as a video's command comes of it. What belongs to the run as a whole stays there.
static void Furnish(Program& video, Program& run)
{
    video.Options = run.Options;
    video.Settings = run.Settings;
    video.Tools = run.Tools;
    video.Language_Table = run.Language_Table;
    video.Now = run.Now;
    video.Run = run.Run;
    video.Run.Tally = {};
    video.Run.Video_File_List = {QString()};
    video.Run.Failed_Videos.clear();
    video.Run.Video = {};
    video.Run.Digest_Separator_Written = 0;
    video.Run.Source_Deleted = false;
    video.Run.Ancillary_Deleted = false;
    video.Run.Attachment_Files_Deleted = false;
    video.Run.Attachment_Folder_Deleted = false;
    // What was noted ahead of it stands above it.
    video.Logs.Log_Faults = std::exchange(run.Logs.Log_Faults, {});
}

static std::unique_ptr<Working_Folder> Take_Working_Folder(Careful_Walk& walk)
{
    if (walk.Spare.empty())
        return std::make_unique<Working_Folder>();
    auto folder = std::move(walk.Spare.back());
    walk.Spare.pop_back();
    return folder;
}

Video_Work::Video_Work(Careful_Walk& walk, const Folder_Entry& entry)
    : Walk(walk), Person(walk.Run.Calls, walk.Prog, Prog), Listener(walk.Run.Calls, walk.Prog),
      Number(++walk.Run.Handed_Out), Working(Take_Working_Folder(walk))
{
    Clock.start();
    Furnish(Prog, walk.Prog);
    Prog.Listener = walk.Prog.Listener ? &Listener : nullptr;
    Prog.Run.Current_Video_Path = walk.Folders.Videos + entry.Name;
    Split = Prog.Options.chk_SplitVideos.Value == 1;
    Outcome = {.Source = Prog.Run.Current_Video_Path,
               .Sub_Path = walk.Folders.Sub,
               .Output = {},
               .Status = File_Outcome::Kind::Failed,
               .Exit = -1};
}

QString Working_Output(const Video_Work& work)
{
    return work.Working->Path() + u"output.mkv"_s;
}

QString Working_Chapters(const Video_Work& work)
{
    return work.Working->Path() + u"chapters.xml"_s;
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
    return work.Prog.Options.Delete_Video_After && !work.Split;
}

void Note_Start_Of_Tool(Video_Work& work)
{
    const Run_State& run = work.Prog.Run;
    work.Tool_Was_Asked = true;
    work.Tool_Not_Started = work.Tool_Not_Started || run.Pipe_Result == 0 || run.Process_Result != -1;
}

QString With_Final_Names(const Video_Work& work, QString line)
{
    const Program& program = work.Prog;
    if (line.contains(work.Working->Path())) {
        // Without the extension: ahead of it a piece has its number.
        line.replace(Working_Output(work).chopped(4), As_One_Line(work.Outcome.Output.chopped(4)));
        line.replace(Working_Chapters(work), As_One_Line(program.Run.Video.Chapter_Text));
    }
    return line;
}
