#include "run/careful_walk.h"

#include "logs/results_digest.h"
#include "run/video_work.h"
#include "state/program.h"

#include <exception>

Careful_Walk::Careful_Walk(Careful_Run& run, const Run_Folders& folders)
    : Run(run), Prog(run.Prog), Folders(folders), Before(folders.Target)
{}

/// Takes over what the video that comes next left, and so on; all there is if `gaps` are let stand.
static void Take_Over_Logs(Careful_Run& run, bool gaps)
{
    while (!run.Unlogged.empty() && (gaps || run.Unlogged.begin()->first == run.Logged + 1)) {
        const auto& [number, log] = *run.Unlogged.begin();
        run.Prog.Logs.Log_Results.Append(log.Text);
        run.Prog.Run.Digest_Separator_Written = log.Separator_Written;
        run.Logged = number;
        run.Unlogged.erase(run.Unlogged.begin());
    }
}

static void Keep_Log(Careful_Run& run, Video_Work& work)
{
    Digest_Results(work.Prog);
    run.Unlogged[work.Number] = {.Text = work.Prog.Logs.Log_Results.ToString(),
                                 .Separator_Written = work.Prog.Run.Digest_Separator_Written};
    run.Prog.Run.Process_Failed = work.Prog.Run.Process_Failed;
}

void Log_In_Order(Careful_Run& run, Video_Work& work)
{
    Keep_Log(run, work);
    Take_Over_Logs(run, false);
}

Careful_Run::~Careful_Run()
{
    Calls.Halted = true;
    Calls.Close();
    try {
        for (const auto& work : In_Work) {
            if (work->Thread.joinable())
                work->Thread.join();
            Keep_Log(*this, *work);
        }
        Take_Over_Logs(*this, true);
    } catch (const std::exception&) {
        // No memory for it: the log ends earlier.
    }
    In_Work.clear();
}

void Enter(const Careful_Walk& walk)
{
    Program& program = walk.Prog;
    Use_Folders(walk.Folders, program.Options);
    program.Run.Options_In_Force = Options_Text(program);
    program.Run.Sensible_Bases =
        program.Settings.Extensions.Sensible_Names_And_Sizes ? walk.Bases : program.Run.Sensible_Bases;
}
