#pragma once

#include "state/run_listener.h"

#include <QString>

struct Program;

/// The steps that the normal run and the split run have in common.

/// How the walk over the folder goes on after an entry.
enum class After_Entry
{
    Next,
    Halted, ///< leave the walk, then close it
    Stopped ///< leave the run at once: mkvmerge can't be started
};

/// True for an entry that the walk looks at: its lowered extension stands in Video_Extensions (an empty one does), and
/// it hasn't vanished since the walk began.
bool Is_Looked_At(const QString& path);

/// Sets Files_Left and File_Index at the start of a video. Error 6 where they leave 16 bits.
void Count_Video(Program& program, int files_done);

/// Runs the command that was assembled for `video_path` (in a dry run only tells the listener of it), and sets how the
/// video ended. Stopped, with report 8 or 9, if mkvmerge can't be started.
After_Entry Run_Assembled_Command(Program& program, const QString& video_path, File_Outcome& outcome);
