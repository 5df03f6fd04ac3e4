#pragma once

#include "end_to_end/batch_process.h"

/// One thing that goes wrong in a careful batch of a.mkv and b.mkv whose sources are to go to the trash. The tools are
/// the real ones; a script that runs before or after one, for the first video, has the real one in $REAL and its
/// arguments in "$@". Scripts run in the test's folder. Behind each, three sums must hold, and what the row
/// says.
struct Fault
{
    const char* Name;
    const char* Before = "";  ///< a script: what stands there
    const char* Probe = "";   ///< before ffprobe
    const char* Merge = "";   ///< before mkvmerge, but for questions
    const char* After = "";   ///< after mkvmerge; the last command's status is its own
    const char* Calls = "";   ///< calls of the system that fail, or kill the program (the shim's FAULT)
    const char* Results = ""; ///< "a.mkv done, b.mkv failed"; empty: the program is killed, and a second run mends all
    const char* Reason = "";  ///< stands in the first result's reason or warnings, in the log, and in the journal
    const char* Told = "";    ///< stands on standard error
    const char* Target = "";  ///< names in the target folder then; empty: those of what is done
    const char* More = "";    ///< arguments
    const char* Videos = "";  ///< names in the videos' folder then; empty: not looked at
    bool One_By_One = false;  ///< it hangs on the order in which things are done
};

inline const char* const Kill_Us = "eval \"$KILL_IT\"";
inline const char* const Both_Done = "a.mkv done, b.mkv done";
inline const char* const Both_Failed = "a.mkv failed, b.mkv failed";
inline const char* const First_Failed = "a.mkv failed, b.mkv done";

inline const char* const With_Companions =
    "--tick AddSubs --tick AddAudio --set \"Menu/Delete Source Video Sundry Files=True\"";
inline const char* const With_Options = "--tick AddSubs --tick AddAudio --tick UseSubOpts";

struct CarefulFaults : testing::TestWithParam<Fault>
{};

std::string Row_Name(const testing::TestParamInfo<Fault>& row);
