#pragma once

struct Program;

/// The split run: each video of Options.Path_Videos is only remuxed and cut into pieces; nothing is deleted, and no
/// other option counts. True if the walk came to its end; false if it was halted, or stopped because mkvmerge could not
/// be started.
bool Split_Video_Files(Program& program);
