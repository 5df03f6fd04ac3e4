#include "inspect/json_probe.h"

#include "inspect/asked_output.h"
#include "inspect/identified_file.h"
#include "inspect/json_value.h"
#include "inspect/stream_parser.h"
#include "inspect/track_numbers.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/text.h"
#include "tools/ask_tool.h"

#include <climits>
#include <utility>

using namespace Qt::StringLiterals;

Command_Line Json_Probe_Command(const QString& path)
{
    Command_Line command;
    const bool plain = Is_Absolute_Path(path);
    command.Add_Path(u" -v error -print_format json -show_format -show_streams "_s, plain ? path : u"file:"_s + path);
    return command;
}

/// The member as text, trimmed as the compact form's values are.
static QString Value_Of(const Tool_Json& section, const char* key)
{
    return Trim_Blanks(Json_Text(Json_Member(section, key)));
}

static QString Tag_Of(const Tool_Json& section, const QString& key)
{
    return Trim_Blanks(Json_Text(Json_Member_In_Any_Case(Json_Member(section, "tags"), key)));
}

static QString Flag_Of(const Tool_Json& stream, const char* key)
{
    return Value_Of(Json_Member(stream, "disposition"), key);
}

static QString Language_Or_Und(const QString& language)
{
    return language.isEmpty() ? u"und"_s : language;
}

static FileInfo File_Record(const Tool_Json& format, const QString& path)
{
    FileInfo record;
    record.StreamType = u"File_Info"_s;
    record.FileName = path;
    record.Title = Tag_Of(format, u"title"_s);
    record.Duration = Value_Of(format, "duration");
    record.FormatName = Value_Of(format, "format_name");
    record.Size = Value_Of(format, "size");
    record.BitRate = Value_Of(format, "bit_rate");
    record.Encoder = Tag_Of(format, u"encoder"_s);
    record.Language = Language_Or_Und(Tag_Of(format, u"language"_s));
    record.Literal = true;
    return record;
}

/// The kind of record that a stream makes; empty: none.
static QString Kind_Of(const Tool_Json& stream)
{
    QString type = Value_Of(stream, "codec_type");
    if (type == "audio"_L1 || type == "subtitle"_L1 || type == "attachment"_L1)
        return type;
    if (type == "video"_L1)
        return Flag_Of(stream, "attached_pic") == "1"_L1 ? u"attachment"_s : type;
    return {};
}

/// "00:01:02.500000000" in seconds; nothing for any other text.
static std::optional<double> Seconds_Of_Time(const QString& text)
{
    const QStringList parts = text.split(u':');
    if (parts.size() != 3)
        return std::nullopt;
    constexpr double base = 60;
    return (Number_Prefix(parts[0]) * base + Number_Prefix(parts[1])) * base + Number_Prefix(parts[2]);
}

/// A stream's seconds. Matroska has no field for them; who writes it puts "00:01:02.500000000" into a tag.
static QString Duration_Of(const Tool_Json& stream)
{
    const std::optional<double> tagged = Seconds_Of_Time(Tag_Of(stream, u"duration"_s));
    return tagged ? QString::number(*tagged, 'f', 3) : Value_Of(stream, "duration");
}

static FileInfo Stream_Record(const Tool_Json& stream, const QString& kind)
{
    FileInfo record;
    record.StreamType = kind;
    record.Title = Tag_Of(stream, u"title"_s);
    record.CodecName = Value_Of(stream, "codec_name");
    record.Index = Value_Of(stream, "index");
    record.Language = Language_Or_Und(Tag_Of(stream, u"language"_s));
    record.DefaultFlag = Flag_Of(stream, "default");
    record.ForcedFlag = Flag_Of(stream, "forced");
    record.AttachedPic = Flag_Of(stream, "attached_pic");
    if (kind == "attachment"_L1)
        record.FileName = Tag_Of(stream, u"filename"_s);
    if (kind == "audio"_L1) {
        record.Channels = Value_Of(stream, "channels");
    } else {
        record.Width = Value_Of(stream, "width");
        record.Height = Value_Of(stream, "height");
    }
    if (kind == "video"_L1 || kind == "subtitle"_L1)
        record.FrameRate = Value_Of(stream, "r_frame_rate");
    record.BitRate = Value_Of(stream, "bit_rate");
    // Matroska has no field for it; mkvmerge writes it as a tag.
    if (record.BitRate.isEmpty())
        record.BitRate = Tag_Of(stream, u"bps"_s);
    record.Duration = Duration_Of(stream);
    record.Id = Value_Of(stream, "id");
    record.SampleAspect = Value_Of(stream, "sample_aspect_ratio");
    record.Literal = true;
    return record;
}

/// The word for a flag: "No" or "Yes"; empty for anything else.
static QString Word_Of_Flag(const QString& flag)
{
    if (flag == "0"_L1)
        return u"No"_s;
    return flag == "1"_L1 ? u"Yes"_s : QString();
}

/// The streams seen as an added file: each tag is the first one that a stream has, the flags are the first stream's.
static ExtStreamInfo Added_File_Record(const Tool_Json& streams)
{
    ExtStreamInfo info;
    for (const Tool_Json& stream : streams) {
        if (info.HandlerName.isEmpty())
            info.HandlerName = Tag_Of(stream, u"handler_name"_s);
        if (info.Language.isEmpty())
            info.Language = Tag_Of(stream, u"language"_s);
    }
    info.Forced = Word_Of_Flag(Flag_Of(streams.front(), "forced"));
    info.Default = Word_Of_Flag(Flag_Of(streams.front(), "default"));
    return info;
}

/// "HH:MM:SS" and the fraction; empty for a text that is no time of day or longer.
static QString Known_Duration(const QString& seconds, const QString& path)
{
    double value = 0;
    if (!Text_To_Number(seconds, value) || !(value > 0) || value > INT_MAX / 2)
        return {};
    return Format_Duration(u"duration="_s + seconds, path);
}

std::optional<Probed_File> Parse_Json_Probe(const QByteArray& json, const QString& path)
{
    const Tool_Json value = Parse_Tool_Json(json);
    const Tool_Json& streams = Json_Member(value, "streams");
    if (!streams.is_array() || streams.empty())
        return std::nullopt;
    Probed_File file;
    file.Streams.assign(1, File_Record(Json_Member(value, "format"), path));
    for (const Tool_Json& stream : streams)
        if (const QString kind = Kind_Of(stream); !kind.isEmpty())
            file.Streams.push_back(Stream_Record(stream, kind));
    file.External = Added_File_Record(streams);
    file.Duration = Known_Duration(file.Streams.front().Duration, path);
    return file;
}

/// What ffprobe says of a file; nothing, with the reason in `why_not`, if that doesn't count.
static std::optional<Probed_File> Ask_FFProbe(Program& program, const QString& path, QString& why_not)
{
    const Tool_Answer answer = Ask_Tool(program, program.Tools.FFProbe_Path, Json_Probe_Command(path));
    if (!answer.Ended_Well()) {
        why_not = answer.Why_Not(u"ffprobe"_s);
        return std::nullopt;
    }
    std::optional<Probed_File> file = Parse_Json_Probe(answer.Output, path);
    if (!file)
        why_not = u"ffprobe finds no stream in it"_s;
    return file;
}

QString Probe_Video(Program& program, const QString& path)
{
    Media_State& media = program.Media;
    media.FileInfoList.assign(1, {});
    media.Video_Duration.clear();
    media.Probe_Warnings.clear();
    QString why_not;
    std::optional<Probed_File> file = Ask_FFProbe(program, path, why_not);
    if (!file)
        return why_not;
    if (!Numbers_Are_Alike(path)) {
        const std::optional<Identified_File> identified = Identify_Tracks(program, path, why_not);
        if (!identified)
            return why_not;
        if (!identified->Readable)
            return identified->Container.isEmpty()
                       ? u"mkvmerge doesn't know what kind of file it is"_s
                       : u"mkvmerge can't read files of the kind "_s + identified->Container;
        media.Probe_Warnings = Take_Mkvmerge_Numbers(file->Streams, *identified);
    }
    media.FileInfoList = std::move(file->Streams);
    Note_Languages(media);
    media.Video_Duration = file->Duration;
    return {};
}

std::optional<double> Probe_Picture_Seconds(Program& program, const QString& path)
{
    QString why_not;
    const std::optional<Probed_File> file = Ask_FFProbe(program, path, why_not);
    return file ? Longest_Picture(file->Streams) : std::nullopt;
}

QString Probe_Added_File(Program& program, const QString& path, ExtStreamInfo& info)
{
    info = {};
    QString why_not;
    if (const std::optional<Probed_File> file = Ask_FFProbe(program, path, why_not)) {
        info = file->External;
        return {};
    }
    // mkvmerge reads kinds of subtitles that ffprobe doesn't.
    QString not_identified;
    const std::optional<Identified_File> identified = Identify_Tracks(program, path, not_identified);
    return identified && identified->Readable && !identified->Tracks.empty() ? QString() : why_not;
}
