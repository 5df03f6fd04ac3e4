#include "inspect/output_check.h"

#include "inspect/ebml_head.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/text.h"
#include "tools/tool_runner.h"

#include <QFileInfo>
#include <QMap>
#include <QSet>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

/// Seconds that a duration may differ from the probe's.
static constexpr double Tolerated_Seconds = 2;

/// What the words ahead of an input say, for the next input.
static void Take_Option(const QString& option, const QString& value, Asked_Output& asked, Asked_Input& next)
{
    if (option == "--no-audio"_L1)
        next.Audio_Tracks = QStringList();
    else if (option == "--audio-tracks"_L1)
        next.Audio_Tracks = value.split(u',');
    else if (option == "--no-subtitles"_L1)
        next.Subtitle_Tracks = QStringList();
    else if (option == "--subtitle-tracks"_L1)
        next.Subtitle_Tracks = value.split(u',');
    else if (option == "--no-attachments"_L1)
        next.No_Attachments = true;
    else if (option == "--no-chapters"_L1)
        next.No_Chapters = true;
    else if (option == "--attach-file"_L1)
        asked.Attached += value;
    else if (option == "--chapters"_L1)
        asked.Has_Chapter_File = true;
    else if (option == "--default-duration"_L1 || option == "--sync"_L1)
        asked.Times_Changed = true;
    else if (option == "--split"_L1)
        asked.Is_Split = true;
}

/// True for an option whose value is the next argument, so that a value is never read as an option.
static bool Takes_A_Value(const QString& argument)
{
    static const QSet<QString> without = {u"--no-audio"_s,    u"--no-subtitles"_s,  u"--no-attachments"_s,
                                          u"--no-chapters"_s, u"--no-track-tags"_s, u"--no-global-tags"_s,
                                          u"--no-video"_s};
    return argument.startsWith("--"_L1) && !without.contains(argument);
}

Asked_Output Asked_Of(const Command_Line& command, const FileInfoList& streams)
{
    Asked_Output asked;
    Asked_Input next;
    const QStringList& arguments = command.Arguments();
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "("_L1) {
            next.Path = arguments.value(++i);
            asked.Inputs.push_back(std::exchange(next, {}));
            continue;
        }
        const bool with_value = Takes_A_Value(arguments[i]);
        Take_Option(arguments[i], with_value ? arguments.value(i + 1) : QString(), asked, next);
        i += with_value ? 1 : 0;
    }
    if (!asked.Inputs.empty())
        for (const FileInfo& stream : streams)
            if (stream.StreamType == "video"_L1 || stream.StreamType == "audio"_L1 ||
                stream.StreamType == "subtitle"_L1)
                asked.Inputs.front().Tracks += stream.Index;
    return asked;
}

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
    if (!probed || !written || asked.Times_Changed || asked.Is_Split)
        return;
    const double more = *written - *probed;
    if (more < -Tolerated_Seconds || (more > Tolerated_Seconds && asked.Inputs.size() == 1))
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

/// What mkvmerge says of a file that it should be able to read; nothing after a warning.
static std::optional<Identified_File> Identify_Or_Warn(Program& program, const QString& path, Check_Result& result)
{
    QString why_not;
    std::optional<Identified_File> file = Identify_Tracks(program, path, why_not);
    if (file && !file->Readable)
        why_not = u"mkvmerge can't read it"_s;
    if (why_not.isEmpty())
        return file;
    result.Warnings += u"\"%1\" could not be compared: %2"_s.arg(File_Name_Of(path), why_not);
    return std::nullopt;
}

void Check_Identified(Program& program, const Asked_Output& asked, const QString& output, Check_Result& result)
{
    std::vector<Identified_File> inputs;
    for (const Asked_Input& input : asked.Inputs) {
        std::optional<Identified_File> file = Identify_Or_Warn(program, input.Path, result);
        if (!file)
            return;
        inputs.push_back(std::move(*file));
    }
    if (const std::optional<Identified_File> written = Identify_Or_Warn(program, output, result))
        Compare_Identified(asked, inputs, *written, result);
}

std::optional<double> Seconds_Of(const FileInfo& file_record)
{
    double seconds = 0;
    const bool known = Text_To_Number(file_record.Duration, seconds) && std::isfinite(seconds) && seconds > 0;
    return known ? std::optional(seconds) : std::nullopt;
}
