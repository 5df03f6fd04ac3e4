#pragma once

#include <QString>
#include <QStringList>

struct Program;

/// What mkvmerge itself says about a media file, as lines to be shown.

/// Fills Video_Info_Lines with the identification of the file at `path`, by the tool that Which_Tool_Identifies names.
/// False, with the lines left alone, after report 1, 2 or 3. A file that mkvmerge can't read succeeds: its lines say
/// so.
bool Identify_File(Program& program, const QString& path);

/// True if the tool that identifies can be run and tells its version; a report says why not. False without a word if
/// there is no such tool.
bool Identifying_Tool_Runs(Program& program);

/// The lines of mkvmerge's verbose text (CR LF at line ends, blanks in values written "\s", colons "\c"). Unless
/// `keep_codec_private`, the codec-private values become "XX" and the escapes are undone; with it the lines stay raw.
/// Empty lines at the end are dropped.
QStringList Identification_Lines(const QString& verbose_text, bool keep_codec_private);
