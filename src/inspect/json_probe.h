#pragma once

#include "state/media_state.h"
#include "support/command_line.h"

#include <QByteArray>
#include <QString>
#include <optional>

struct Program;

/// ffprobe asked once for each file, its answer read as JSON: a careful run's way to the same records that the compact
/// text fills. File names and tags are data here and nothing in them is escaped or looked for by its letters.

/// What one probe said about a file.
struct Probed_File
{
    FileInfoList Streams{1}; ///< as Parse_Stream_List orders them; never without the file record
    ExtStreamInfo External;  ///< the same file seen as one that is added; its language may be empty
    QString Duration;        ///< HH:MM:SS and the fraction; empty: unknown
};

/// " -v error -print_format json -show_format -show_streams " and the path, which gets "file:" ahead of it where
/// ffprobe would take it for an option or a protocol.
Command_Line Json_Probe_Command(const QString& path);

/// Reads ffprobe's JSON about the file at `path`. Nothing for a text that is no such JSON, or that names no stream.
std::optional<Probed_File> Parse_Json_Probe(const QByteArray& json, const QString& path);

/// Asks ffprobe, and for most containers mkvmerge for its track numbers, about the video at `path`: fills FileInfoList,
/// Video_Duration (empty: unknown) and Probe_Warnings. Returns why that failed, in words; empty if it went well.
QString Probe_Video(Program& program, const QString& path);

/// Asks ffprobe how long the longest picture of a file runs, in seconds; nothing: not known.
std::optional<double> Probe_Picture_Seconds(Program& program, const QString& path);

/// Asks ffprobe about an added file. `info` is what it said; empty values where only mkvmerge can read the file.
/// Returns why no tool can read it; empty if one can.
QString Probe_Added_File(Program& program, const QString& path, ExtStreamInfo& info);
