#pragma once

struct Program;

/// The normal run: each video of the folder is inspected, its command is assembled, mkvmerge writes it, and what was
/// said about it is digested; the source and what belongs to it may then go to the trash.

/// Processes every video of Options.Path_Videos. Run.Video_File_List only gives the count and the percentage. True if
/// the walk came to its end; false if it was halted, or stopped because mkvmerge could not be started.
/// Run_Time_Error passes through; mkvmerge is gone then.
bool Process_Video_Files(Program& program);
