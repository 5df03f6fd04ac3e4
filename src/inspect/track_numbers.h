#pragma once

#include "inspect/identified_file.h"
#include "state/media_state.h"

#include <QStringList>

/// ffprobe and mkvmerge number the tracks of most containers alike, but not of all. The command line goes by
/// mkvmerge's.

/// True for a container whose tracks both tools number alike, by the file's extension: mkv, webm, ogv.
bool Numbers_Are_Alike(const QString& path);

/// Sets mkvmerge's number in the Index of each video, audio and subtitle stream: matched by the container's own number
/// of the track, else by their order within the type. A stream that mkvmerge doesn't know is taken out (its StreamType
/// is emptied). Returns a warning in words for each track that only one of the two tools knows.
QStringList Take_Mkvmerge_Numbers(FileInfoList& streams, const Identified_File& identified);
