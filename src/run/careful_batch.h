#pragma once

struct Program;

/// The careful run: the walk of the classic one, whole or split, with promises on top. What stands under a final name
/// is complete and was checked; a source goes only when that is safe; one bad file is one bad file; and every entry of
/// the folder with a video's extension gets one result with a reason.

/// Takes the chosen videos of Options.Path_Videos in work, one after the other. False if the run was halted, or stopped
/// because the tools couldn't be started.
bool Run_Carefully(Program& program);
