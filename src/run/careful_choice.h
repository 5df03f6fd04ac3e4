#pragma once

#include <QString>

struct Careful_Run;
struct Program;

/// Which videos a careful batch takes in work: those of all its folders that the person chose, without what the journal
/// has as done where that is asked for.

/// Fills Run.Video_File_List with every entry of the folders that has a video's extension, whatever it is. Returns why
/// there is nothing to do, in words: the folder can't be read, or holds none.
QString Find_Careful_Videos(Program& program);

/// Looks at each folder once, fills the run's walks and their choices, and tells what the start of a run has to tell:
/// what a killed run left behind, what couldn't be listed, what was done before. The journal gets its line.
void Choose_Work(Careful_Run& run);
