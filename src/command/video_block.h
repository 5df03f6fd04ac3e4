#pragma once

#include "state/job_options.h"
#include "state/media_state.h"
#include "support/command_line.h"

#include <QString>

/// The switches that drop the source's tags, attachments and chapters. Chapters that are replaced are always dropped.
void Append_Switches(Command_Line& command, const JobOptions& options, bool chapters_replaced);

/// The options of each kept video track, in list order: language, default flag, size or aspect ratio, name, frame rate.
/// `source_base` is the name that "Set Video Title" gives. `sensible` leaves the size alone where Has_Own_Aspect and
/// none is chosen.
void Append_Source_Video(Command_Line& command, FileInfoList& streams, const JobOptions& options,
                         const QString& source_base, bool sensible = false);

/// True for pictures whose samples aren't square: their size alone doesn't tell how they are to be shown.
bool Has_Own_Aspect(const FileInfo& stream);
