#pragma once

#include <QString>
#include <QStringList>

struct Program;

/// The normal run: each video of the folder is inspected, its command is assembled, mkvmerge writes it, and what was
/// said about it is digested; the source and what belongs to it may then go to the trash.

/// Fills `list` with the names of the files of `folder` (ending in a separator) that match `patterns`, in the order of
/// the file system. One empty entry, and false, if there is none or the folder can't be opened.
bool Find_Video_Files(Program& program, const QString& folder, const QString& patterns, QStringList& list);

/// Processes every video of Options.Path_Videos. Run.Video_File_List only gives the count and the percentage. True if
/// the walk came to its end; false if it was halted, or stopped because mkvmerge could not be started.
/// Run_Time_Error passes through; mkvmerge is gone then.
bool Process_Video_Files(Program& program);
