#pragma once

#include <QString>

struct Program;

/// The careful run: the walk of the classic one, whole or split, with promises on top. What stands under a final name
/// is complete and was checked; a source goes only when that is safe; one bad file is one bad file; and every entry of
/// the folder with a video's extension gets one result with a reason.

/// Fills Run.Video_File_List with every such entry, whatever it is. Returns why there is nothing to do, in words: the
/// folder can't be read, or holds none.
QString Find_Careful_Videos(Program& program);

/// Takes the chosen videos of Options.Path_Videos in work, one after the other. False if the run was halted, or stopped
/// because the tools couldn't be started.
bool Run_Carefully(Program& program);
