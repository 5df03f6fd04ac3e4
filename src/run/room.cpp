#include "run/room.h"

#include "inspect/asked_output.h"
#include "support/disk_steps.h"
#include "support/long_path.h"
#include "support/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString Size_Text(std::uint64_t bytes)
{
    const auto amount = static_cast<double>(bytes);
    for (const auto& [unit, size] : {std::pair(u"GB"_s, 1e9), std::pair(u"MB"_s, 1e6), std::pair(u"KB"_s, 1e3)})
        if (amount >= size)
            return QString::number(amount / size, 'f', 1) + u' ' + unit;
    return QString::number(bytes) + u" bytes"_s;
}

/// True for tracks that the output takes.
static bool Is_Kept_Track(const FileInfo& stream)
{
    return stream.StreamType == "video"_L1 || stream.StreamType == "audio"_L1 || stream.StreamType == "subtitle"_L1;
}

/// The source's part of the output: what its kept tracks make, or all of it where one of them tells no bit rate.
static double Source_Part(const Program& program)
{
    const FileInfoList& streams = program.Media.FileInfoList;
    const double all = streams.front().Size.toDouble();
    const double seconds = Seconds_Of(streams.front()).value_or(0);
    double kept = 0;
    for (const FileInfo& stream : streams) {
        if (!Is_Kept_Track(stream))
            continue;
        const double rate = stream.BitRate.toDouble();
        // Subtitles tell none and weigh nothing.
        if (rate <= 0 && stream.StreamType != "subtitle"_L1)
            return all;
        kept += rate / 8 * seconds;
    }
    return seconds > 0 ? std::min(kept, all) : all;
}

static double Added_Part(const Command_Line& command, const QString& source)
{
    const QStringList& arguments = command.Arguments();
    double bytes = 0;
    for (qsizetype at = 1; at < arguments.size(); ++at)
        if (arguments[at] != Path_For_Tool(source) &&
            (arguments[at - 1] == "("_L1 || arguments[at - 1] == "--attach-file"_L1))
            if (const auto identity = Identity_Of(arguments[at]))
                bytes += static_cast<double>(identity->Size);
    return bytes;
}

Room_Check Check_Room(const Program& program, double taken)
{
    // Rates are averages, and the source's own may be wrong: only far below is it certain.
    constexpr double certainly_too_little = 0.7;
    QString folder = program.Options.Path_Target;
    // One below the target folder may not have been made yet.
    while (!Folder_Exists(folder) && folder.contains(Path_Separator))
        folder.truncate(folder.lastIndexOf(Path_Separator, -2) + 1);
    const std::optional<std::uint64_t> free = Free_Bytes(folder);
    Room_Check check;
    check.Needed = Source_Part(program) + Added_Part(program.Run.Mkvmerge_Arguments, program.Run.Current_Video_Path);
    const auto room = static_cast<double>(free.value_or(0));
    const double needed = check.Needed + taken;
    if (!free || room >= needed)
        return check;
    const auto size = [](double bytes) { return Size_Text(static_cast<std::uint64_t>(bytes)); };
    QString words = u"needs %1, %2 are free"_s.arg(size(check.Needed), Size_Text(*free));
    if (taken > 0)
        words += u", of which the other videos in work need %1"_s.arg(size(taken));
    (room < needed * certainly_too_little ? check.Failure : check.Warning) = words;
    return check;
}
