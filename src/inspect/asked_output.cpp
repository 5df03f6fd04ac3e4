#include "inspect/asked_output.h"

#include "support/text.h"

#include <QSet>
#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

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
    else if (option == "--sync"_L1)
        asked.Delay = std::max(asked.Delay, -Number_Prefix(value.section(u':', 1)) / 1000);
    else if (option == "--split"_L1)
        asked.Is_Split = true;
}

/// Frames a second of "25p", "23.976fps", "24000/1001p"; 0 for what isn't known to be a rate.
static double Rate_Of(const QString& text)
{
    constexpr double fastest = 240; // above, it is a clock's rate and not that of the pictures
    const double divisor = text.contains(u'/') ? Number_Prefix(text.section(u'/', 1)) : 1;
    const double rate = divisor > 0 ? Number_Prefix(text) / divisor : 0;
    const bool is_time = text.endsWith(u's') && !text.endsWith("fps"_L1);
    return is_time || rate > fastest ? 0 : rate;
}

/// What "0:25p" leaves of the duration of that track, 1 at most; 0 where it isn't known.
static double Share_Left(const QString& value, const FileInfoList& streams)
{
    const double asked = Rate_Of(value.section(u':', 1));
    for (const FileInfo& stream : streams)
        if (stream.Index == value.section(u':', 0, 0) && asked > 0)
            return std::min(1.0, Rate_Of(stream.FrameRate) / asked);
    return 0;
}

/// True for an option whose value is the next argument, so that a value is never read as an option.
static bool Takes_A_Value(const QString& argument)
{
    static const QSet<QString> without = {u"--no-audio"_s,    u"--no-subtitles"_s,  u"--no-attachments"_s,
                                          u"--no-chapters"_s, u"--no-track-tags"_s, u"--no-global-tags"_s,
                                          u"--no-video"_s};
    return argument.startsWith("--"_L1) && !without.contains(argument);
}

std::optional<double> Seconds_Of(const FileInfo& record)
{
    double seconds = 0;
    const bool known = Text_To_Number(record.Duration, seconds) && std::isfinite(seconds) && seconds > 0;
    return known ? std::optional(seconds) : std::nullopt;
}

std::optional<double> Longest_Picture(const FileInfoList& streams)
{
    std::optional<double> longest;
    for (const FileInfo& stream : streams)
        if (const auto seconds = Seconds_Of(stream); seconds && stream.StreamType == "video"_L1)
            longest = std::max(longest.value_or(0), *seconds);
    return longest;
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
        const QString value = with_value ? arguments.value(i + 1) : QString();
        Take_Option(arguments[i], value, asked, next);
        if (arguments[i] == "--default-duration"_L1)
            asked.Least_Share = std::min(asked.Least_Share, Share_Left(value, streams));
        asked.Times_Changed =
            asked.Times_Changed || arguments[i] == "--default-duration"_L1 || arguments[i] == "--sync"_L1;
        i += with_value ? 1 : 0;
    }
    asked.Picture_Seconds = Longest_Picture(streams);
    if (!asked.Inputs.empty())
        for (const FileInfo& stream : streams)
            if (stream.StreamType == "video"_L1 || stream.StreamType == "audio"_L1 ||
                stream.StreamType == "subtitle"_L1)
                asked.Inputs.front().Tracks += stream.Index;
    return asked;
}
