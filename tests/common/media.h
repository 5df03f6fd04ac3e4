#pragma once

#include "common/test_program.h"

#include <QJsonObject>

/// Real media for tests, made by ffmpeg once in each test process, and the real tools.

/// The tool's path, looked for in PATH; ends the test process if it isn't installed.
QString Tool_In_Path(const QString& name);

/// Lets the program use the real ffprobe and mkvmerge.
void Use_Real_Tools(Test_Program& test);

/// The path of a media file of that name, made by ffmpeg with these arguments (inputs, options; the output is added) at
/// the first call. It must not be changed: copy it with Place.
QString Media_File(const QString& name, const QStringList& ffmpeg_arguments);

/// Five frames of 64x48 and half a second of sound, in the container of that extension: mkv, mp4, avi, ts, webm, mov.
QString Short_Video(const QString& extension = QStringLiteral("mkv"));

/// Five frames, English and German sound, French subtitles; titles on the file and on each track.
QString Rich_Video();

/// Copies a file below the test's root; returns the copy's path.
QString Place(const Test_Program& test, const QString& media, const QString& relative);

/// What `mkvmerge -J` says about a file; empty if it isn't one that it knows.
QJsonObject Identify(const QString& path);

/// One line for each track of Identify: "0 video eng", "1 audio ger default".
QStringList Tracks_Of(const QString& path);
