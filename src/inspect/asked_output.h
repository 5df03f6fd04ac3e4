#pragma once

#include "state/media_state.h"
#include "support/command_line.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

/// A command read back: what its output has to hold, and for how long it has to run.

/// One input file of a command and what the command takes from it.
struct Asked_Input
{
    QString Path;
    /// Numbers of tracks that must be taken; empty for an added file: at least one.
    QStringList Tracks;
    bool No_Attachments = false;
    bool No_Chapters = false;
    std::optional<QStringList> Audio_Tracks;    ///< --audio-tracks; an empty list for --no-audio; nothing: all
    std::optional<QStringList> Subtitle_Tracks; ///< --subtitle-tracks; an empty list for --no-subtitles; nothing: all
};

/// A command as far as its output is checked against it.
struct Asked_Output
{
    std::vector<Asked_Input> Inputs; ///< the source first
    QStringList Attached;            ///< paths of --attach-file
    bool Has_Chapter_File = false;
    bool Times_Changed = false; ///< a frame rate or a delay was asked for: the output may run for longer
    double Least_Share = 1;     ///< of the source's duration: below 1 where a frame rate makes the picture faster
    std::optional<double> Picture_Seconds; ///< Longest_Picture of the source
    double Delay = 0;                      ///< seconds by which a delay may bring the end forward
    bool Is_Split = false;                 ///< several files come of it
};

/// Reads a command back. `streams` are the source's records behind the selection of tracks: those that are still in are
/// what the source must give.
Asked_Output Asked_Of(const Command_Line& command, const FileInfoList& streams);

/// The seconds of a record's Duration ("62.500000"); nothing if it isn't known.
std::optional<double> Seconds_Of(const FileInfo& record);

/// The seconds of the longest picture that is taken; nothing where none tells.
std::optional<double> Longest_Picture(const FileInfoList& streams);
