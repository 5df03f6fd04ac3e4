#pragma once

#include "inspect/identified_file.h"
#include "state/companions.h"
#include "state/media_state.h"
#include "support/command_line.h"

#include <QStringList>
#include <optional>
#include <vector>

struct Program;

/// What makes an output count: mkvmerge's word that it took each track, the file's own word that it is whole, and,
/// where the source is to go, mkvmerge's identification of what went in and what came out.

/// What is amiss with an output, in words. Good: nothing is.
struct Check_Result
{
    QString Failure;      ///< not empty: the output doesn't count
    QStringList Warnings; ///< one line each

    bool Good() const { return Failure.isEmpty() && Warnings.isEmpty(); }
};

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
    bool Times_Changed = false; ///< a frame rate or a delay was asked for: the output may run for another time
    bool Is_Split = false;      ///< several files come of it
};

/// Reads a command back. `streams` are the source's records behind the selection of tracks: those that are still in are
/// what the source must give.
Asked_Output Asked_Of(const Command_Line& command, const FileInfoList& streams);

/// The tracks of the file at `input` that mkvmerge says it took, by its raw output ("'PATH' track N: Using the ...
/// output module"), as numbers.
QStringList Tracks_Taken(const QString& mkvmerge_output, const QString& input);

/// Checks one mkvmerge run: the tracks that it took, that the file at `output` ends where its Segment says, and its
/// duration against `seconds` (the probe's; nothing: not known). To be called once it ended with 0 or 1; with 1, what
/// mkvmerge warned of is a warning.
Check_Result Check_Output(const Asked_Output& asked, const QString& mkvmerge_output, int exit, const QString& output,
                          std::optional<double> seconds);

/// The part of Check_Output that looks at one file: for each further piece of a split. Returns its duration.
std::optional<double> Check_File(const QString& output, Check_Result& result);

/// A warning if the command leaves out all audio that the source has and none is added; empty: it doesn't.
QString Warning_Of_No_Audio(const Asked_Output& asked, const Companions& companions);

/// Compares what went in with what came out, both as mkvmerge identifies them. `inputs` are in the order of
/// `asked.Inputs`.
void Compare_Identified(const Asked_Output& asked, const std::vector<Identified_File>& inputs,
                        const Identified_File& output, Check_Result& result);

/// The second half of the check, for a source that is to go: asks mkvmerge about each input and the output, and
/// compares. What couldn't be asked is a warning.
void Check_Identified(Program& program, const Asked_Output& asked, const QString& output, Check_Result& result);

/// The seconds of a file record's Duration ("62.500000"); nothing if it isn't known.
std::optional<double> Seconds_Of(const FileInfo& file_record);
