#pragma once

#include "support/input.h"

struct Program;

/// The head of a run: what the run button does. State only; a view renders it.

/// What became of a press of the run button.
enum class Press_Result
{
    Ignored,    ///< not a plain left click on the button, or the press before it is still at work
    Refused,    ///< a tool, a folder or the videos are missing
    Finished,   ///< the run came to its end, whatever became of its files
    Interrupted ///< the run was halted
};

/// A mouse button was let go over btn_RunVantorra: checks tools and folders, locks the form, runs the batch or, with
/// chk_SplitVideos ticked, the split run, shows how it ended, writes the log entry and unlocks the form. Returns when
/// all that is done; Run_Time_Error passes through.
Press_Result btn_RunVantorra_MouseUp(Program& program, const Mouse_Release& release);

/// A box with what the last run has warned of, and one with the videos that failed and why, for a driver that doesn't
/// tell while it goes on. None where there is nothing to tell; a run that was halted names no failed videos.
void Show_Run_Warnings(Program& program);

/// Empties the progress bar and hides its label.
void Reset_Progress(Program& program);

/// The label reads "FINISHED", green. It isn't shown if the run never showed it.
void Show_Finished(Program& program);

/// The label reads "INTERRUPTED", magenta. It isn't shown if the run never showed it.
void Show_Interrupted(Program& program);
