#include "inspect/identified_check.h"

#include "inspect/json_probe.h"
#include "state/program.h"
#include "support/paths.h"

#include <QFileInfo>
#include <QMap>
#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

static bool Is_Asked(const Identified_Track& track, const Asked_Input& input)
{
    const std::optional<QStringList>& only = track.Type == "audio"_L1       ? input.Audio_Tracks
                                             : track.Type == "subtitles"_L1 ? input.Subtitle_Tracks
                                                                            : std::nullopt;
    return !only || only->contains(QString::number(track.Id));
}

/// Tracks of each type, as far as the command asks for them.
using Track_Counts = QMap<QString, int>;

static void Compare_Tracks(const Track_Counts& asked, const Track_Counts& got, Check_Result& result)
{
    Track_Counts all = asked;
    all.insert(got);
    for (const QString& type : all.keys())
        if (asked.value(type) != got.value(type))
            result.Warnings += u"the output has %1 %2 tracks instead of %3"_s.arg(
                QString::number(got.value(type)), type, QString::number(asked.value(type)));
}

static void Compare_Attachments(const Asked_Output& asked, const std::vector<Identified_File>& inputs,
                                const Identified_File& output, Check_Result& result)
{
    // mkvmerge attaches the same file once, so names and sizes are looked for and not counted.
    QStringList wanted;
    for (std::size_t i = 0; i < inputs.size(); ++i)
        if (!asked.Inputs[i].No_Attachments)
            wanted += inputs[i].Attachments;
    for (const QString& path : asked.Attached)
        wanted += u"%1, %2 bytes"_s.arg(File_Name_Of(path), QString::number(QFileInfo(path).size()));
    wanted.removeDuplicates();
    for (const QString& attachment : wanted)
        if (!output.Attachments.contains(attachment))
            result.Warnings += u"the output misses the attachment "_s + attachment;
}

static void Compare_Chapters(const Asked_Output& asked, const std::vector<Identified_File>& inputs,
                             const Identified_File& output, Check_Result& result)
{
    int wanted = asked.Has_Chapter_File ? 1 : 0;
    for (std::size_t i = 0; i < inputs.size(); ++i)
        wanted += asked.Inputs[i].No_Chapters ? 0 : inputs[i].Chapters;
    const bool right = asked.Has_Chapter_File ? output.Chapters >= wanted : output.Chapters == wanted;
    if (!right)
        result.Warnings += u"the output has %1 chapters instead of %2"_s.arg(output.Chapters).arg(wanted);
}

void Compare_Identified(const Asked_Output& asked, const std::vector<Identified_File>& inputs,
                        const Identified_File& output, Check_Result& result)
{
    Track_Counts wanted;
    Track_Counts got;
    for (std::size_t i = 0; i < inputs.size(); ++i)
        for (const Identified_Track& track : inputs[i].Tracks)
            if (Is_Asked(track, asked.Inputs[i]))
                ++wanted[track.Type];
    for (const Identified_Track& track : output.Tracks)
        ++got[track.Type];
    if (output.Tracks.empty())
        result.Failure = u"the output holds no track"_s;
    Compare_Tracks(wanted, got, result);
    Compare_Attachments(asked, inputs, output, result);
    Compare_Chapters(asked, inputs, output, result);
}

void Check_Picture(Program& program, const Asked_Output& asked, const QString& output, std::optional<double> seconds,
                   Check_Result& result)
{
    // A tag of the source may tell too much, and so does the whole of it where sound or subtitles are longer.
    const double wanted = std::min(asked.Picture_Seconds.value_or(INFINITY), seconds.value_or(INFINITY));
    if (asked.Inputs.size() < 2 || !std::isfinite(wanted))
        return;
    const std::optional<double> written = Probe_Picture_Seconds(program, output);
    if (written && *written < wanted * asked.Least_Share - Tolerated_Seconds)
        result.Warnings += u"the output's picture runs for %1 s, the source's for %2 s"_s.arg(
            QString::number(*written, 'f', 1), QString::number(wanted, 'f', 1));
}

void Check_Identified(Program& program, const Asked_Output& asked, const QString& output, Check_Result& result)
{
    QStringList paths;
    QStringList called;
    for (const Asked_Input& input : asked.Inputs) {
        paths += input.Path;
        called += u'"' + File_Name_Of(input.Path) + u'"';
    }
    paths += output;
    called += u"the output"_s;
    std::vector<Identified_File> files;
    for (const Identification& each : Identify_Each(program, paths)) {
        const QString& name = called[static_cast<qsizetype>(files.size())];
        const QString why_not = each.File && !each.File->Readable ? u"mkvmerge can't read it"_s : each.Why_Not;
        if (!why_not.isEmpty()) {
            result.Warnings += u"%1 could not be compared: %2"_s.arg(name, why_not);
            return;
        }
        files.push_back(*each.File);
    }
    const Identified_File written = std::move(files.back());
    files.pop_back();
    Compare_Identified(asked, files, written, result);
}
