// Parsing ffprobe's text and assembling the command, for a file of 60 streams. "ratio" is the time of the pass against
// that of a raw loop over the same text, measured in turn: for parsing, one that looks for each key once in each
// stream; for assembly, one that appends the finished command argument by argument.
#include "command/command_frame.h"
#include "compare.h"
#include "inspect/stream_parser.h"
#include "nobody.h"
#include "state/program.h"

#include <array>
#include <string>

using namespace Qt::StringLiterals;

static constexpr int Stream_Count = 60;

/// One stream's line as ffprobe prints it.
static QString Stream_Line(int index)
{
    const QString type = index == 0 ? u"video"_s : index < 30 ? u"audio"_s : u"subtitle"_s;
    QString line =
        u"stream|index=%1|codec_name=h264|codec_long_name=Some long codec name|profile=High|codec_type="_s.arg(index) +
        type +
        u"|codec_tag_string=[0][0][0][0]|codec_tag=0x0000|width=1920|height=1080|coded_width=1920"
        "|sample_aspect_ratio=1:1|r_frame_rate=25/1|avg_frame_rate=25/1|time_base=1/1000|id=N/A"_s;
    for (const char16_t* flag :
         {u"default", u"dub", u"original", u"comment", u"lyrics", u"karaoke", u"forced", u"hearing_impaired",
          u"visual_impaired", u"clean_effects", u"attached_pic", u"timed_thumbnails", u"captions", u"descriptions"})
        line += u"|disposition:"_s + QString::fromUtf16(flag) + u"=0"_s;
    return line + u"|tag:language=eng|tag:title=Track \\| %1|tag:DURATION=00:00:01.000000000\r\n"_s.arg(index);
}

static QString FFProbe_Text()
{
    QString text = u"format|filename=/in/Movie.mkv|nb_streams=60|duration=5400.1|size=1|bit_rate=1|tag:x=y\r\n"_s;
    for (int index = 0; index < Stream_Count; ++index)
        text += Stream_Line(index);
    return text;
}

static void Parse(benchmark::State& state)
{
    static const std::array<std::u16string, 10> keys = {u"tag:title=",
                                                        u"codec_name=",
                                                        u"index=",
                                                        u"width=",
                                                        u"height=",
                                                        u"r_frame_rate=",
                                                        u"disposition:default=",
                                                        u"disposition:forced=",
                                                        u"disposition:attached_pic=",
                                                        u"tag:language="};
    Media_State media;
    media.FFProbe_Output = FFProbe_Text();
    Compare(
        state, [&] { Parse_FFProbe_Output(media, {}); },
        [&] {
            for (const QString& line : media.FFProbe_Output.split(u"stream|"_s)) {
                const std::u16string element = line.toLower().toStdU16String();
                for (const std::u16string& key : keys)
                    benchmark::DoNotOptimize(element.find(key));
            }
        });
}

static void Assemble(benchmark::State& state)
{
    Nobody nobody;
    Program program(nobody);
    program.Media.FFProbe_Output = FFProbe_Text();
    Parse_VideoData_A(program, u"/out/"_s, u"/in/"_s, u"/in/Movie.mkv"_s);
    const QStringList arguments = program.Run.Mkvmerge_Arguments.Arguments();
    Media_State media;
    media.FFProbe_Output = program.Media.FFProbe_Output;
    Compare(
        state, [&] { Parse_VideoData_A(program, u"/out/"_s, u"/in/"_s, u"/in/Movie.mkv"_s); },
        [&] {
            Parse_FFProbe_Output(media, {});
            QString text;
            QStringList list;
            for (const QString& argument : arguments) {
                text += u' ' + argument;
                list += argument.mid(0);
            }
            benchmark::DoNotOptimize(text);
        });
}

BENCHMARK(Parse)->UseManualTime();
BENCHMARK(Assemble)->UseManualTime();
BENCHMARK_MAIN();
