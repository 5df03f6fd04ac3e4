#include "fuzz.h"
#include "inspect/stream_parser.h"
#include "support/console_text.h"
#include "support/run_time_error.h"

using namespace Qt::StringLiterals;

/// The kinds of record that a command can be made of.
static bool Is_Known_Kind(const QString& kind)
{
    return QStringList{u"File_Info"_s, u"video"_s, u"audio"_s, u"subtitle"_s, u"attachment"_s}.contains(kind);
}

static void Check_Record(const FileInfo& record, bool is_last)
{
    Claim(Is_Known_Kind(record.StreamType) || (is_last && record.StreamType.isEmpty()),
          "only the last record may be empty", record.StreamType);
    Claim(record.StreamType.isEmpty() || !record.Language.isEmpty(), "a record has a language");
    for (const QString& value : {record.Index, record.Width, record.Height, record.Language, record.CodecName})
        Claim(!value.contains(u"\r\n"_s) && !QString(value).remove(u" | "_s).contains(u'|'),
              "a value ends at its line and at a pipe", value);
}

/// ffprobe's text of a video and of an external file, taken apart.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Media_State media;
    media.FFProbe_Output = Console_Text().Decode(QByteArrayView(bytes, static_cast<qsizetype>(size)));
    try {
        Claim(Parse_FFProbe_Output(media, u"a.mkv"_s) != media.FFProbe_Output.isEmpty(), "an empty text is refused");
        for (const FileInfo& record : media.FileInfoList) {
            Check_Record(record, &record == &media.FileInfoList.back());
            Claim(!Unescape_Title(record.Title).contains(u"\\c"_s) || record.Title.contains(u'\\'),
                  "unescaping makes no escape where there was none", record.Title);
        }
    } catch (const Run_Time_Error&) {}
    Claim(!media.FileInfoList.empty(), "the list is never empty");
    try {
        const QString duration = Format_Duration(media.FFProbe_Output);
        Claim(duration.count(u':') == 2 && duration.indexOf(u':') == 2, "a duration has three parts", duration);
    } catch (const Run_Time_Error&) {}
    try {
        const ExtStreamInfo info = Parse_External_Streams(media.FFProbe_Output, u"a.mp3"_s);
        for (const QString& flag : {info.Default, info.Forced})
            Claim(flag.isEmpty() || flag == u"Yes"_s || flag == u"No"_s, "a flag is a word", flag);
    } catch (const Run_Time_Error&) {}
    return 0;
}
