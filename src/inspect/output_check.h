#pragma once

#include "inspect/asked_output.h"
#include "inspect/identified_file.h"
#include "state/companions.h"
#include "state/media_state.h"

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

/// Seconds that a duration may differ from the probe's.
inline constexpr double Tolerated_Seconds = 2;

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
