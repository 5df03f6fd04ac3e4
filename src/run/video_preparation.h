#pragma once

#include "run/video_work.h"

/// The steps of a careful video ahead of mkvmerge: nothing is written but names that are tried in the working folder.

/// Holds the source open from here on; what is no file gets its result.
bool Open_Source(Video_Work& work, const Folder_Entry& entry);

/// Chooses the output's name. Two videos of one run never share one.
bool Choose_Output(Video_Work& work);

/// Fails where a folder that companions are to come from can't be read: they would be left out in silence.
bool Reach_Companions(Video_Work& work);

/// Asks ffprobe, and mkvmerge where it numbers tracks in its own way.
bool Inspect(Video_Work& work);

/// Assembles the command for the final name, and tells what is amiss with it.
bool Assemble(Video_Work& work);

/// With "Skip What Would Not Change" on: false for an .mkv that the assembled command would make anew as it is.
bool Is_To_Change(Video_Work& work);

/// What would fail after hours is tried now: the room, and the names. A dry run ends here.
bool Look_Ahead(Video_Work& work);
