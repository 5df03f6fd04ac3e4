#include "inspect/json_probe.h"

#include "common/media.h"
#include "common/stand_in_tool.h"
#include "inspect/stream_parser.h"
#include "inspect/track_numbers.h"
#include "inspect/video_probe.h"

TEST(Json_Probe, HostileTagsAreTextAndNothingElse)
{
    const QByteArray json = R"({"streams":[
        {"index":0,"codec_type":"video","codec_name":"h264","width":16,"height":9,"r_frame_rate":"25/1","id":"0x1e0",
         "sample_aspect_ratio":"16:15","disposition":{"default":1,"forced":0,"attached_pic":0},
         "tags":{"TITLE":"Attachment ID 1|codec_type=audio","language":"[eng","DURATION":"00:01:02.500000000"}},
        {"index":1,"codec_type":"data"},
        {"index":2,"codec_type":"audio","disposition":{"attached_pic":0},
         "tags":{"title":" C:\\songs a|b \n stream","BPS":"640000"}},
        {"index":3,"codec_type":"video","disposition":{"attached_pic":1}}],
        "format":{"duration":"3725.5","size":"7","tags":{"title":"duration=abc|x"}}})";
    const std::optional<Probed_File> file = Parse_Json_Probe(json, u"/v/duration=abc.mkv"_s);
    ASSERT_TRUE(file);
    QStringList records;
    for (const FileInfo& r : file->Streams)
        records += QStringList{r.StreamType, r.Title, r.Language, r.Index, r.SampleAspect, r.BitRate}.join(u'/');
    EXPECT_EQ(records[0].section(u'/', 1, 1), u"duration=abc|x"_s);
    EXPECT_EQ(records.mid(1),
              (QStringList{u"video/Attachment ID 1|codec_type=audio/[eng/0/16:15/"_s,
                           u"audio/C:\\songs a|b \n stream/und/2//640000"_s, u"attachment//und/3//"_s}));
    EXPECT_EQ(file->Streams[0].FileName, u"/v/duration=abc.mkv"_s);
    EXPECT_EQ(file->Duration, u"01:02:05.5"_s);
    EXPECT_EQ(file->Streams[1].Duration, u"62.500"_s);
}

TEST(Json_Probe, WhatIsNoAnswerAboutStreamsIsNone)
{
    for (const char* text :
         {"", "null", "[]", "{}", "{\n\n}", R"({"streams":[]})", R"({"streams":7})", R"({"streams":)"})
        EXPECT_FALSE(Parse_Json_Probe(text, {})) << text;
    const std::optional<Probed_File> odd =
        Parse_Json_Probe(R"({"streams":[null,7,{"codec_type":["video"],"tags":[1]}],"format":"x"})", {});
    ASSERT_TRUE(odd);
    EXPECT_EQ(odd->Streams.size(), 1U);
}

TEST(Json_Probe, ADurationThatIsNotThereIsUnknown)
{
    for (const char* duration : {R"("N/A")", R"("")", R"("-3")", R"("nan")", R"("inf")", R"("1e99")", "null", "[]"}) {
        const std::optional<Probed_File> file = Parse_Json_Probe(
            R"({"streams":[{"codec_type":"video"}],"format":{"duration":)" + QByteArray(duration) + "}}", {});
        ASSERT_TRUE(file) << duration;
        EXPECT_EQ(file->Duration, QString()) << duration;
    }
}

TEST(Json_Probe, ANameIsNeverAnOptionOrAProtocol)
{
    EXPECT_EQ(Json_Probe_Command(Native(u"/v/-i a.mkv"_s)).Arguments().constLast(), Native(u"/v/-i a.mkv"_s));
    EXPECT_EQ(Json_Probe_Command(u"-i"_s).Arguments().constLast(), u"file:-i"_s);
    EXPECT_EQ(Json_Probe_Command(u"http://x"_s).Arguments().constLast(), u"file:http://x"_s);
}

/// A program whose ffprobe is a script.
static QString Probe_With(Test_Program& test, const QByteArray& script)
{
    Use_Real_Tools(test);
    test.Prog.Tools.FFProbe_Path = Write_Stand_In(test, u"ffprobe"_s, script);
    return Probe_Video(test.Prog, u"/v/a.mkv"_s);
}

TEST(Json_Probe, AToolsWordCountsOnlyIfItEndedWell)
{
    const QByteArray answer = R"(printf '{"streams":[{"codec_type":"video"}]}'; )";
    Test_Program test;
    EXPECT_EQ(Probe_With(test, answer), QString());
    EXPECT_EQ(Probe_With(test, answer + "echo 'no {' >&2"), QString()) << "messages have a pipe of their own";
    EXPECT_EQ(Probe_With(test, answer + "echo >&2; echo '[mov @ 0x55d0] broken' >&2; exit 1"),
              u"ffprobe ended with status 1: [mov] broken"_s);
    EXPECT_EQ(test.Prog.Media.FileInfoList.size(), 1U);
    EXPECT_TRUE(Probe_With(test, answer + "kill -9 $$").startsWith(u"ffprobe was ended by "_s));
    EXPECT_EQ(Probe_With(test, "exec cat /dev/zero"), u"ffprobe printed without end"_s);
    test.Prog.Tools.FFProbe_Path = test.Path(u"missing"_s);
    EXPECT_TRUE(Probe_Video(test.Prog, u"/v/a.mkv"_s).startsWith(u"ffprobe could not be started: "));
    EXPECT_EQ(Children_Left(), 0);
}

TEST(Json_Probe, AnAddedFileNeedsOneToolThatReadsIt)
{
    Test_Program test;
    Use_Real_Tools(test);
    ExtStreamInfo info;
    EXPECT_EQ(Probe_Added_File(test.Prog, Short_Video(u"mkv"_s), info), QString());
    EXPECT_EQ(info.Default, u"No"_s);
    EXPECT_FALSE(Probe_Added_File(test.Prog, test.Write(u"a.mp3"_s, "no sound"), info).isEmpty());
    EXPECT_EQ(info.Default, QString());
    const QString usf = test.Write(u"a.usf"_s, "<?xml version=\"1.0\"?>\n<USFSubtitles version=\"1.0\"><metadata/>"
                                               "<subtitles><language code=\"eng\"/><subtitle start=\"00:00:00.100\" "
                                               "stop=\"00:00:00.200\"><text>Hi</text></subtitle></subtitles>"
                                               "</USFSubtitles>\n");
    EXPECT_EQ(Probe_Added_File(test.Prog, usf, info), QString()) << "mkvmerge reads what ffprobe doesn't know";
}

/// Everything that a command is made of.
static QString Words_Of(const FileInfo& stream)
{
    // The compact form has "N/A" for the size of what can't be seen.
    const bool is_video = stream.StreamType == "video"_L1;
    const QString size = is_video ? stream.Height + u'x' + stream.Width : QString();
    return QStringList{
        stream.StreamType, stream.Title,       stream.CodecName,  stream.Index,      stream.Language, size,
        stream.FrameRate,  stream.DefaultFlag, stream.ForcedFlag, stream.AttachedPic}
        .join(u'/');
}

TEST(Json_Probe, FillsTheRecordsThatTheCompactFormFills)
{
    for (const QString& path : {Short_Video(), Short_Video(u"mp4"_s), Short_Video(u"avi"_s), Short_Video(u"ts"_s),
                                Short_Video(u"webm"_s), Short_Video(u"mov"_s), Rich_Video()}) {
        Test_Program test;
        Use_Real_Tools(test);
        Media_State& media = test.Prog.Media;
        ASSERT_EQ(Run_FFProbe_Video(test.Prog, path), 1);
        ASSERT_TRUE(Parse_FFProbe_Output(media, path));
        const FileInfoList compact = media.FileInfoList;
        const QString duration = media.Video_Duration;
        ASSERT_EQ(Probe_Video(test.Prog, path), QString());
        EXPECT_EQ(media.Video_Duration, duration);
        ASSERT_EQ(media.FileInfoList.size(), compact.size()) << path.toStdString();
        for (std::size_t i = 0; i < compact.size(); ++i)
            EXPECT_EQ(Words_Of(media.FileInfoList[i]), Words_Of(compact[i])) << path.toStdString();
        EXPECT_EQ(media.Probe_Warnings, QStringList());
    }
}

/// Streams "video 0x1e0", in order, with the tracks "audio 189" that mkvmerge gives: the numbers that come of it.
static QStringList Numbers(const QStringList& streams, const QStringList& tracks, QStringList* warnings = nullptr)
{
    FileInfoList list(1);
    for (const QString& stream : streams) {
        list.emplace_back();
        list.back().StreamType = stream.section(u' ', 0, 0);
        list.back().Id = stream.section(u' ', 1);
        list.back().Index = QString::number(list.size() - 2);
    }
    Identified_File identified;
    for (const QString& track : tracks)
        identified.Tracks.push_back(
            {.Id = static_cast<int>(identified.Tracks.size()),
             .Type = track.section(u' ', 0, 0),
             .Codec = {},
             .Number = track.contains(u' ') ? std::optional(track.section(u' ', 1).toULongLong()) : std::nullopt});
    const QStringList said = Take_Mkvmerge_Numbers(list, identified);
    if (warnings != nullptr)
        *warnings = said;
    QStringList numbers;
    for (std::size_t i = 1; i < list.size(); ++i)
        numbers += list[i].StreamType.isEmpty() ? u"-"_s : list[i].Index;
    return numbers;
}

TEST(Track_Numbers, MkvmergesAreTakenByTheContainersNumberElseByOrder)
{
    EXPECT_EQ(Numbers({u"audio 0x1c0"_s, u"video 0x1e0"_s, u"audio 0x80"_s},
                      {u"video 224"_s, u"audio 549755814077"_s, u"audio 192"_s}),
              (QStringList{u"2"_s, u"0"_s, u"1"_s}));
    EXPECT_EQ(Numbers({u"audio N/A"_s, u"video N/A"_s, u"audio N/A"_s}, {u"video"_s, u"audio"_s, u"audio"_s}),
              (QStringList{u"1"_s, u"0"_s, u"2"_s}));
    QStringList warnings;
    EXPECT_EQ(Numbers({u"video 0x1"_s, u"subtitle 0x2"_s, u"audio 0x3"_s, u"subtitle 0x4"_s, u"attachment"_s},
                      {u"video 1"_s, u"audio 3"_s, u"subtitles 4"_s, u"buttons 9"_s}, &warnings),
              (QStringList{u"0"_s, u"-"_s, u"1"_s, u"2"_s, u"4"_s}));
    ASSERT_EQ(warnings.size(), 2);
    EXPECT_TRUE(warnings[0].startsWith(u"mkvmerge can't read stream 1"));
    EXPECT_TRUE(warnings[1].startsWith(u"ffprobe doesn't know mkvmerge's track 3"));
}
