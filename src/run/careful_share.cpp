#include "run/careful_share.h"

#include "run/careful_walk.h"
#include "run/video_work.h"
#include "tools/tool_runner.h"

#include <algorithm>

double Share_Done(const Careful_Run& run)
{
    const Run_State& state = run.Prog.Run;
    const bool by_size = state.At_Once > 1 && run.Bytes_In_All > 0;
    double done = by_size ? static_cast<double>(run.Bytes_Past) : state.Videos_Done;
    for (const auto& work : run.In_Work)
        done += work->Percent / 100.0 * (by_size ? static_cast<double>(work->Source.Identity().Size) : 1);
    const double all = by_size ? static_cast<double>(run.Bytes_In_All) : std::max(state.Videos_Chosen, 1);
    return std::min(done / all, 1.0);
}

void Show_Percent(Video_Work& work, int percent)
{
    work.Percent = percent;
    Show_Fraction(work.Walk.Prog, work.Outcome.Source, percent, Share_Done(work.Walk.Run));
}
