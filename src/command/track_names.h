#pragma once

#include "command/source_names.h"
#include "state/job_options.h"
#include "state/media_state.h"
#include "support/command_line.h"

#include <QString>

/// The names of the source's tracks, and the title of the file. The names of a literal record reach mkvmerge to the
/// letter.

/// A title with its escapes undone, between two backslash-quote pairs: a title that itself begins and ends with a
/// quote.
QString Wrap_Title(const QString& name);

/// " --track-name " of a kept track, or nothing: then mkvmerge keeps the name.
void Append_Video_Name(Command_Line& command, const FileInfo& stream, const JobOptions& options,
                       const QString& source_base);
void Append_Audio_Name(Command_Line& command, const FileInfo& stream, bool strip_titles);
void Append_Subtitle_Name(Command_Line& command, const FileInfo& stream, bool strip_titles);

/// " --title " of the output, or nothing: then mkvmerge takes over the source's title. `source_title` is the
/// container's title, `first_title` that of the first record. `literal`: the names reach mkvmerge to the letter,
/// nothing in them is an escape.
void Append_File_Title(Command_Line& command, const JobOptions& options, const QString& video_base_name,
                       const QString& source_title, const QString& first_title, bool literal = false);
