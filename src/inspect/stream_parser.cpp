#include "inspect/stream_parser.h"

#include "support/run_time_error.h"
#include "support/text.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

/// Stands for an escaped pipe with blanks around it while the text is taken apart.
static const QString Pipe_Marker = QStringLiteral("@@@");

/// The text with each side-data section joined to the line ahead of it and all line ends gone.
static QString Joined_Sections(const QString& ffprobe_output)
{
    QString text = ffprobe_output;
    return text.replace(u"side_data|"_s, u" "_s).remove(Line_Break);
}

QStringList Stream_Elements(const QString& ffprobe_output)
{
    return Split_Text(Joined_Sections(ffprobe_output), u"stream|"_s);
}

/// Get_Key_Value with the text's lower-case copy at hand, which is made once for many keys. Only ASCII letters are
/// lowered there, so that both have the same places.
static void Get_Value(const QString& text, const QString& lowered, const QString& key, QString& output,
                      const QString& file)
{
    // Deliberate: the key may stand inside a longer key or inside a value; the first occurrence wins.
    const qsizetype at = lowered.indexOf(key);
    if (at < 0)
        return;
    const qsizetype begin = at + key.size();
    const qsizetype end = text.indexOf(u'|', begin);
    QString value = text.mid(begin, end < 0 ? -1 : end - begin);
    // Deliberate: a language in brackets can't be read and ends the program, but for the last item.
    if (end >= 0 && key == "tag:language="_L1 && value.contains(u'['))
        Raise_Type_Mismatch(u"Reading the language of a stream"_s, file, value);
    value.replace(Pipe_Marker, u" | "_s);
    // Deliberate: the last item isn't trimmed.
    output = end < 0 ? value : Trim_Blanks(value);
}

int Get_Key_Value(const QString& text, const QString& key, QString& output, const QString& file)
{
    Get_Value(text, Ascii_Lower(text), key, output, file);
    return 0;
}

/// One key and the field it fills.
struct Key_Field
{
    QString Key;
    QString FileInfo::*Field;
};

using Key_Fields = std::vector<Key_Field>;

static const Key_Fields& Keys_Of_File()
{
    static const Key_Fields keys = {
        {u"filename="_s, &FileInfo::FileName},
        {u"tag:title="_s, &FileInfo::Title},
        {u"format_name="_s, &FileInfo::FormatName},
        {u"duration="_s, &FileInfo::Duration},
        {u"size="_s, &FileInfo::Size},
        {u"bit_rate="_s, &FileInfo::BitRate},
        {u"tag:encoder="_s, &FileInfo::Encoder},
    };
    return keys;
}

/// The keys of a stream: those that all streams have, the size of what can be seen, and a frame rate.
static Key_Fields Keys_Of_Stream(bool has_size, bool has_rate)
{
    Key_Fields keys = {
        {u"tag:title="_s, &FileInfo::Title},
        {u"codec_name="_s, &FileInfo::CodecName},
        {u"index="_s, &FileInfo::Index},
    };
    if (has_size)
        keys.insert(keys.end(), {{u"width="_s, &FileInfo::Width},
                                 {u"height="_s, &FileInfo::Height},
                                 {u"sample_aspect_ratio="_s, &FileInfo::SampleAspect}});
    if (has_rate)
        keys.push_back({u"r_frame_rate="_s, &FileInfo::FrameRate});
    keys.insert(keys.end(), {{u"disposition:default="_s, &FileInfo::DefaultFlag},
                             {u"disposition:forced="_s, &FileInfo::ForcedFlag},
                             {u"disposition:attached_pic="_s, &FileInfo::AttachedPic},
                             {u"tag:language="_s, &FileInfo::Language}});
    return keys;
}

static const Key_Fields& Keys_Of(const QString& stream_type)
{
    static const Key_Fields with_rate = Keys_Of_Stream(true, true);
    static const Key_Fields audio = Keys_Of_Stream(false, false);
    static const Key_Fields attachment = Keys_Of_Stream(true, false);
    if (stream_type == "File_Info"_L1)
        return Keys_Of_File();
    if (stream_type == "audio"_L1)
        return audio;
    return stream_type == "attachment"_L1 ? attachment : with_rate;
}

/// The kind of record an element makes, by what stands anywhere in its lower-case copy; empty: none. The first test
/// that holds wins.
static QString Classify(const QString& lowered)
{
    if (lowered.contains(u"format|"_s))
        return u"File_Info"_s;
    if (lowered.contains(u"codec_type=video"_s) && lowered.contains(u"disposition:attached_pic=0"_s))
        return u"video"_s;
    if (lowered.contains(u"codec_type=audio"_s))
        return u"audio"_s;
    if (lowered.contains(u"codec_type=subtitle"_s))
        return u"subtitle"_s;
    if (lowered.contains(u"codec_type=attachment"_s) || lowered.contains(u"disposition:attached_pic=1"_s))
        return u"attachment"_s;
    return {};
}

static void Read_Element(QString& element, FileInfo& record, const QString& file)
{
    QString lowered = Ascii_Lower(element);
    record.StreamType = Classify(lowered);
    if (record.StreamType.isEmpty())
        return;
    // Deliberate: only an escaped pipe with blanks around it survives, and only in a stream. Any other ends the value.
    if (record.StreamType != "File_Info"_L1)
        for (QString* text : {&element, &lowered})
            text->replace(u" \\| "_s, Pipe_Marker);
    for (const Key_Field& key : Keys_Of(record.StreamType))
        Get_Value(element, lowered, key.Key, record.*key.Field, file);
    if (record.Language.isEmpty())
        record.Language = u"und"_s;
}

void Parse_Stream_List(QStringList& elements, FileInfoList& list, const QString& file)
{
    list.assign(1, {});
    for (QString& element : elements)
        if (element.contains(u"Attachment ID"_s, Qt::CaseInsensitive))
            element.clear();
    while (!elements.isEmpty() && elements.constLast().isEmpty())
        elements.removeLast();
    for (QString& element : elements) {
        if (element.isEmpty())
            continue;
        // An element of no known kind leaves its slot free for the next one, so there are no gaps.
        if (!list.back().StreamType.isEmpty())
            list.emplace_back();
        Read_Element(element, list.back(), file);
    }
}

static QStringList Languages_Of_Kind(const FileInfoList& streams, const QString& type)
{
    QStringList languages;
    for (const FileInfo& stream : streams)
        if (stream.StreamType == type)
            languages += stream.Language;
    languages.removeDuplicates();
    return languages;
}

void Note_Languages(Media_State& media)
{
    media.Audio_Languages = Languages_Of_Kind(media.FileInfoList, u"audio"_s);
    media.Subtitle_Languages = Languages_Of_Kind(media.FileInfoList, u"subtitle"_s);
}

bool Parse_FFProbe_Output(Media_State& media, const QString& file)
{
    media.FileInfoList.assign(1, {});
    if (media.FFProbe_Output.isEmpty())
        return false;
    QStringList elements = Stream_Elements(media.FFProbe_Output);
    Parse_Stream_List(elements, media.FileInfoList, file);
    Note_Languages(media);
    return true;
}

/// The last two characters of "00" and the number.
static QString Two_Digits(std::int32_t number)
{
    return (u"00"_s + QString::number(number)).right(2);
}

QString Format_Duration(const QString& text, const QString& file, const QString& doing)
{
    QString subject = file;
    if (subject.isEmpty())
        Get_Key_Value(text, u"filename="_s, subject);
    QString duration;
    Get_Key_Value(text, u"duration="_s, duration);
    const auto seconds = static_cast<float>(Require_Number(duration, doing, subject));
    const float whole_part = std::trunc(seconds);
    // The fraction's text without its leading "0".
    const QString fraction = Single_To_Text(seconds - whole_part).mid(1);
    std::int32_t rest = Round_To_Int32(static_cast<double>(whole_part), u"Reading the duration of "_s + subject);
    const std::int32_t whole_seconds = rest % 60;
    rest = (rest - whole_seconds) / 60;
    const std::int32_t minutes = rest % 60;
    const std::int32_t hours = (rest - minutes) / 60;
    return Two_Digits(hours) + u':' + Two_Digits(minutes) + u':' + Two_Digits(whole_seconds) + fraction;
}

QString Unescape_Title(const QString& text)
{
    QString title = text;
    return title.replace(u"\\s"_s, u" "_s).replace(u"\\c"_s, u":"_s).replace(u"\\2"_s, u"\"\"\""_s);
}

/// The word for a flag that ffprobe printed as 0, 1 or 2.
static QString Flag_Word(const QString& text, const QString& key, const QString& file)
{
    static const std::array<QString, 3> words = {u"No"_s, u"Yes"_s, u""_s};
    const QString doing = u"Reading \""_s + key + u"\" of an external file"_s;
    QString value;
    Get_Key_Value(text, key, value, file);
    const std::int16_t flag = Round_To_Int16(Require_Number(value, doing, file), doing);
    if (flag < 0 || flag >= static_cast<int>(words.size()))
        Raise_Subscript(doing, file, value);
    return words[static_cast<std::size_t>(flag)];
}

ExtStreamInfo Parse_External_Streams(const QString& ffprobe_output, const QString& file)
{
    ExtStreamInfo info;
    info.SourceText = Joined_Sections(ffprobe_output);
    Get_Key_Value(info.SourceText, u"tag:handler_name="_s, info.HandlerName, file);
    Get_Key_Value(info.SourceText, u"tag:language="_s, info.Language, file);
    info.Forced = Flag_Word(info.SourceText, u"disposition:forced="_s, file);
    info.Default = Flag_Word(info.SourceText, u"disposition:default="_s, file);
    return info;
}
