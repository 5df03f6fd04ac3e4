#include "inspect/output_check.h"

#include "inspect/ebml_head.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/text.h"
#include "tools/tool_runner.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

QStringList Tracks_Taken(const QString& mkvmerge_output, const QString& input)
{
    // Looked for by the input's path and not line by line: a path may hold line ends, or the very words.
    QString text = mkvmerge_output;
    text.remove(u'\r');
    const QString head = u'\'' + QString(input).remove(u'\r') + u"' track "_s;
    QStringList tracks;
    for (qsizetype at = text.indexOf(head); at >= 0; at = text.indexOf(head, at + 1)) {
        const qsizetype begin = at + head.size();
        const qsizetype end = text.indexOf(u':', begin);
        const QString number = text.mid(begin, end - begin);
        const QStringView said = QStringView(text).mid(end + 1, 60);
        const bool is_taken =
            said.startsWith(u" Using the output module") || said.startsWith(u" Using the generic output module");
        if (end > begin && Is_All_Digits(number) && is_taken && !tracks.contains(number))
            tracks += number;
    }
    return tracks;
}

/// mkvmerge's first warning; empty if there is none to be found.
static QString First_Warning(const Asked_Output& asked, const QString& mkvmerge_output)
{
    // A name may hold a line break and that very word behind it.
    QStringList names = asked.Attached;
    for (const Asked_Input& input : asked.Inputs)
        names += input.Path;
    const QString mark = u"Warning: "_s;
    for (const QString& line : With_Names_On_One_Line(mkvmerge_output, names).split(u'\n'))
        if (line.startsWith(mark))
            return line.mid(mark.size()).simplified();
    return {};
}

static void Check_Tracks(const Asked_Output& asked, const QString& mkvmerge_output, Check_Result& result)
{
    bool any = false;
    for (const Asked_Input& input : asked.Inputs) {
        const QStringList taken = Tracks_Taken(mkvmerge_output, input.Path);
        any = any || !taken.isEmpty();
        for (const QString& track : input.Tracks)
            if (!taken.contains(track))
                result.Warnings += u"mkvmerge didn't take track %1 of \"%2\""_s.arg(track, File_Name_Of(input.Path));
        if (input.Tracks.isEmpty() && taken.isEmpty())
            result.Warnings += u"mkvmerge took no track of \"%1\""_s.arg(File_Name_Of(input.Path));
    }
    if (!any)
        result.Failure = u"mkvmerge took no track: the output holds nothing"_s;
}

std::optional<double> Check_File(const QString& output, Check_Result& result)
{
    const QFileInfo file(output);
    const std::optional<Ebml_Head> head = Read_Ebml_Head(output);
    if (!file.isFile())
        result.Failure = u"mkvmerge wrote no output"_s;
    else if (!head)
        result.Failure = u"the output doesn't begin as a Matroska file"_s;
    else if (!head->Segment_End)
        result.Failure = u"the output was never finished: its size isn't written in its head"_s;
    else if (const auto size = static_cast<std::uint64_t>(file.size()); size != *head->Segment_End)
        result.Failure = u"the output has %1 bytes, but should have %2 by its own head"_s.arg(
            QString::number(size), QString::number(*head->Segment_End));
    else
        return head->Seconds;
    return std::nullopt;
}

/// An output that ends early is always told, one that runs longer only where nothing was added that may be longer.
static void Check_Duration(const Asked_Output& asked, std::optional<double> probed, std::optional<double> written,
                           Check_Result& result)
{
    if (!probed || !written || asked.Is_Split)
        return;
    const bool is_short = *written < *probed * asked.Least_Share - asked.Delay - Tolerated_Seconds;
    const bool is_long = *written > *probed + Tolerated_Seconds && asked.Inputs.size() == 1 && !asked.Times_Changed;
    if (is_short || is_long)
        result.Warnings += u"the output runs for %1 s, the source for %2 s"_s.arg(QString::number(*written, 'f', 1),
                                                                                  QString::number(*probed, 'f', 1));
}

Check_Result Check_Output(const Asked_Output& asked, const QString& mkvmerge_output, int exit, const QString& output,
                          std::optional<double> seconds)
{
    Check_Result result;
    const std::optional<double> written = Check_File(output, result);
    if (!result.Failure.isEmpty())
        return result;
    Check_Tracks(asked, mkvmerge_output, result);
    if (!result.Failure.isEmpty())
        return result;
    Check_Duration(asked, seconds, written, result);
    const QString warned = First_Warning(asked, mkvmerge_output);
    if (exit == 1 || !warned.isEmpty())
        result.Warnings += warned.isEmpty() ? u"mkvmerge warned of something"_s : u"mkvmerge: "_s + warned;
    return result;
}

QString Warning_Of_No_Audio(const Asked_Output& asked, const Companions& companions)
{
    const bool all_out = !asked.Inputs.empty() && asked.Inputs.front().Audio_Tracks == QStringList();
    return all_out && !companions.External_Audio.front().InUse
               ? u"the source has audio, but the output has none: the audio options leave all of it out"_s
               : QString();
}
