#pragma once

#include "state/media_state.h"

#include <QString>
#include <QStringList>

/// Reduces the text of ffprobe's compact writer to records. One section is one line, "name|key=value|key=value"; a "|"
/// inside a value is written with a backslash ahead of it. Nothing here understands media: keys are found by their
/// first occurrence anywhere in a text, and that decides which tracks the command is made of.
///
/// `file` is only named in run-time errors.

/// The text of a video as elements: side data joined to their stream, line ends gone, split at every "stream|".
/// Element 0 is what stands ahead of the first stream, the format section.
QStringList Stream_Elements(const QString& ffprobe_output);

/// Fills `list`: the file record first, then a record for each video, audio, subtitle and attachment stream (cover art
/// is an attachment). `elements` are changed. A stream of another kind makes no record; if it comes last, it leaves
/// one empty record at the end.
void Parse_Stream_List(QStringList& elements, FileInfoList& list, const QString& file = {});

/// Resets the list of the file in work to one empty record and fills it from FFProbe_Output, the
/// languages too. False if that is empty.
bool Parse_FFProbe_Output(Media_State& media, const QString& file);

/// Takes the languages of the tracks from the records, before an option drops any track.
void Note_Languages(Media_State& media);

/// Looks for the first `key` (given in lower case, "tag:title=") in any case; what follows, up to the next "|", becomes
/// `output`, trimmed. The last item of a text is not trimmed. `output` stays as it was if there is no such key. Always
/// 0. Error 13 for a language that holds "[" and is followed by another item.
int Get_Key_Value(const QString& text, const QString& key, QString& output, const QString& file = {});

/// What is being done where a duration is no number, for a file that ffprobe has read well.
inline const QString Reading_Duration = QStringLiteral("Reading the duration of a file (a raw video stream has none)");

/// HH:MM:SS and the fraction behind it, ".5", of the "duration=" in `text`, in single precision; hours keep two digits.
/// Error 13 if that is missing or no number ("N/A").
QString Format_Duration(const QString& text, const QString& file = {}, const QString& doing = Reading_Duration);

/// Undoes the escapes of a title: "\s" becomes a blank, "\c" a colon, "\2" three double quotes.
QString Unescape_Title(const QString& text);

/// What one "-show_streams" text of an external file says; the first of several streams answers. Error 13 if a flag
/// is missing or no number, 9 if it is not 0 to 2.
ExtStreamInfo Parse_External_Streams(const QString& ffprobe_output, const QString& file);
