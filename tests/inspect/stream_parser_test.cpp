#include "inspect/stream_parser.h"

#include "common/test_program.h"

static FileInfoList Parsed(const QString& ffprobe_output)
{
    Media_State media;
    media.FFProbe_Output = ffprobe_output;
    Parse_FFProbe_Output(media, u"/in/Movie.mkv"_s);
    return media.FileInfoList;
}

/// The format line, then a line for each stream.
static QString Output_Of(const QStringList& streams, const QString& format = u"filename=/in/Movie.mkv"_s)
{
    QString output = u"format|"_s + format + u"\r\n"_s;
    for (const QString& stream : streams)
        output += u"stream|"_s + stream + u"\r\n"_s;
    return output;
}

static QStringList Types_Of(const FileInfoList& list)
{
    QStringList types;
    for (const FileInfo& record : list)
        types += record.StreamType;
    return types;
}

static const QString Video = u"index=0|codec_type=video|disposition:attached_pic=0"_s;
static const QString Audio = u"index=1|codec_type=audio"_s;
static const QString Data = u"index=2|codec_type=data|disposition:attached_pic=0"_s;
static const QString Subtitle = u"index=3|codec_type=subtitle"_s;

TEST(StreamParser, EachKindOfStreamFillsItsOwnFields)
{
    const FileInfoList list = Parsed(Output_Of(
        {u"index=0|codec_name=h264|codec_type=video|width=1920|height=1080|coded_width=1|r_frame_rate=25/1"
         "|disposition:default=1|disposition:forced=0|disposition:attached_pic=0|tag:language=eng|tag:title=Main"_s,
         u"index=1|codec_name=aac|codec_type=audio|width=7|r_frame_rate=0/0|disposition:default=0"
         "|disposition:forced=1|disposition:attached_pic=0|tag:x=y"_s,
         u"index=2|codec_name=ass|codec_type=subtitle|width=10|height=20|r_frame_rate=0/0|tag:language=ger|tag:x=y"_s,
         u"index=3|codec_name=png|codec_type=video|width=30|height=40|r_frame_rate=9/1|disposition:attached_pic=1"_s},
        u"filename=/in/Movie.mkv|format_name=matroska,webm|duration=1.5|size=10|bit_rate=20|tag:title= T "
        "|TAG:ENCODER=Lavf"_s));
    QStringList records;
    for (const FileInfo& r : list)
        records += QStringList{r.StreamType,  r.Index,      r.CodecName,   r.Width,    r.Height, r.FrameRate,
                               r.DefaultFlag, r.ForcedFlag, r.AttachedPic, r.Language, r.Title}
                       .join(u' ');
    EXPECT_EQ(records, (QStringList{u"File_Info         und T"_s, u"video 0 h264 1920 1080 25/1 1 0 0 eng Main"_s,
                                    u"audio 1 aac    0 1 0 und "_s, u"subtitle 2 ass 10 20 0/0    ger "_s,
                                    u"attachment 3 png 30 40    1 und "_s}));
    const FileInfo& file = list[0];
    EXPECT_EQ((QStringList{file.FileName, file.FormatName, file.Duration, file.Size, file.BitRate, file.Encoder}),
              (QStringList{u"/in/Movie.mkv"_s, u"matroska,webm"_s, u"1.5"_s, u"10"_s, u"20"_s, u"Lavf"_s}));
}

TEST(StreamParser, OnlyStreamsOfKnownKindsMakeRecordsAndOnlyALastOneLeavesAnEmptySlot)
{
    const QString picture = u"|disposition:attached_pic=1"_s;
    const std::tuple<QStringList, QStringList> claims[] = {
        {{}, {u"File_Info"_s}},
        {{Video, Data, Audio}, {u"File_Info"_s, u"video"_s, u"audio"_s}},
        {{Video, Data, Data, Subtitle}, {u"File_Info"_s, u"video"_s, u"subtitle"_s}},
        {{Video, Audio, Data}, {u"File_Info"_s, u"video"_s, u"audio"_s, u""_s}},
        {{Audio + picture, Subtitle + picture}, {u"File_Info"_s, u"audio"_s, u"subtitle"_s}},
        {{Data + picture, u"index=4|codec_type=ATTACHMENT"_s}, {u"File_Info"_s, u"attachment"_s, u"attachment"_s}},
        {{Video + u"|tag:note=an attachment id"_s, Audio}, {u"File_Info"_s, u"audio"_s}},
        {{Video, Audio + u"|Attachment ID"_s}, {u"File_Info"_s, u"video"_s}},
        {{Video + u"|tag:title=file format"_s + u"|x=1"_s}, {u"File_Info"_s, u"File_Info"_s}},
    };
    for (const auto& [streams, types] : claims)
        EXPECT_EQ(Types_Of(Parsed(Output_Of(streams))), types) << streams.join(u'/').toStdString();
}

TEST(StreamParser, APipeInATitleSurvivesOnlyInAStreamAndOnlyBetweenBlanks)
{
    const std::tuple<QString, QString, QString> claims[] = {
        {u"A \\| B"_s, u"A | B"_s, u"A \\"_s},
        {u"A \\| B \\| C"_s, u"A | B | C"_s, u"A \\"_s},
        {u"A\\|B"_s, u"A\\"_s, u"A\\"_s},
        {u"A \\|B"_s, u"A \\"_s, u"A \\"_s},
        {u" plain "_s, u"plain"_s, u"plain"_s},
        {u"She said \"hi\" --attach-file /etc/passwd"_s, u"She said \"hi\" --attach-file /etc/passwd"_s,
         u"She said \"hi\" --attach-file /etc/passwd"_s},
        {u"ends in a stream"_s, u"ends in a "_s, u"ends in a "_s},
    };
    for (const auto& [printed, in_stream, in_file] : claims) {
        const QString title = u"|tag:title="_s + printed + u"|tag:x=y"_s;
        const FileInfoList list = Parsed(Output_Of({Audio + title}, u"filename=x"_s + title));
        EXPECT_EQ(list[0].Title, in_file) << printed.toStdString();
        EXPECT_EQ(list[1].Title, in_stream) << printed.toStdString();
    }
    const FileInfoList last = Parsed(Output_Of({Audio + u"|tag:title= A \\| B "_s}));
    EXPECT_EQ(last[1].Title, u" A | B "_s) << "the last item isn't trimmed";
}

TEST(StreamParser, TheFirstOccurrenceOfAKeyWinsWhereverItStands)
{
    const std::tuple<QString, QString, QString> claims[] = {
        {u"a=1|b=2"_s, u"a="_s, u"1"_s},
        {u"A=1|a=2"_s, u"a="_s, u"1"_s},
        {u"coded_width=1|width=2"_s, u"width="_s, u"1"_s},
        {u"filename=/in/duration=9.mkv|duration=1"_s, u"duration="_s, u"9.mkv"_s},
        {u"tag:comment=tag:title=Fake|tag:title=True"_s, u"tag:title="_s, u"Fake"_s},
        {u"x= Case KEPT |y"_s, u"x="_s, u"Case KEPT"_s},
        {u"x= last "_s, u"x="_s, u" last "_s},
        {u"x="_s, u"x="_s, u""_s},
        {u"x=1"_s, u"y="_s, u"as it was"_s},
        {u"x= @@@ |y"_s, u"x="_s, u"|"_s},
    };
    for (const auto& [text, key, wanted] : claims) {
        QString value = u"as it was"_s;
        EXPECT_EQ(Get_Key_Value(text, key, value), 0);
        EXPECT_EQ(value, wanted) << text.toStdString();
    }
}

TEST(StreamParser, ALanguageInBracketsEndsTheProgramUnlessItIsTheLastItem)
{
    const Caught_Error error = Error_Of([] { Parsed(Output_Of({Audio + u"|tag:language=[en]|tag:x=y"_s})); });
    EXPECT_EQ(error.Number, 13);
    EXPECT_TRUE(error.Message.contains(u"/in/Movie.mkv"_s) && error.Message.contains(u"[en]"_s));
    EXPECT_EQ(Parsed(Output_Of({Audio + u"|tag:language=[en]"_s}))[1].Language, u"[en]"_s);
}

TEST(StreamParser, DurationsAreWrittenInSinglePrecisionWithTwoDigitsOfHours)
{
    const std::tuple<QString, QString> claims[] = {
        {u"5400.1235"_s, u"01:30:00.1235352"_s},
        {u"3600.5"_s, u"01:00:00.5"_s},
        {u"59"_s, u"00:00:59"_s},
        {u"360000"_s, u"00:00:00"_s},
        {u"366601"_s, u"01:50:01"_s},
        {u"0.00001"_s, u"00:00:00E-05"_s},
        {u"16777217"_s, u"60:20:16"_s},
    };
    for (const auto& [printed, text] : claims)
        EXPECT_EQ(Format_Duration(u"format|filename=x|duration="_s + printed + u"|size=1"_s), text)
            << printed.toStdString();
}

TEST(StreamParser, ADurationThatIsNoNumberIsAnErrorThatNamesTheFile)
{
    for (const QString& duration : {u"duration=N/A|"_s, u""_s, u"duration=12s|"_s, u"duration=1e20|"_s}) {
        const Caught_Error error =
            Error_Of([&] { Format_Duration(u"format|filename=/in/raw.h264|"_s + duration + u"size=1"_s); });
        EXPECT_EQ(error.Number, duration.contains(u"e20"_s) ? 6 : 13) << duration.toStdString();
        EXPECT_TRUE(error.Message.contains(u"/in/raw.h264"_s)) << error.Message.toStdString();
    }
}

TEST(StreamParser, TitlesLoseTheirEscapesInOneOrder)
{
    EXPECT_EQ(Unescape_Title(u""_s), u""_s);
    EXPECT_EQ(Unescape_Title(u"a\\sb\\cc\\2d\\S"_s), u"a b:c\"\"\"d\\S"_s);
    EXPECT_EQ(Unescape_Title(u"\\\\s"_s), u"\\ "_s);
}

TEST(StreamParser, AnExternalFileAnswersWithItsFirstStream)
{
    const ExtStreamInfo info = Parse_External_Streams(
        u"stream|index=0|disposition:default=1|disposition:forced=2|tag:language=fre|tag:handler_name=Sound|tag:x=y\r\n"
        "stream|index=1|disposition:default=0|disposition:forced=0|tag:language=ger\r\n"_s,
        u"/in/a.mp3"_s);
    EXPECT_EQ((QStringList{info.Default, info.Forced, info.Language, info.HandlerName}),
              (QStringList{u"Yes"_s, u""_s, u"fre"_s, u"Sound"_s}));
    EXPECT_TRUE(info.SourceText.contains(u"tag:x=ystream|index=1"_s));
}

TEST(StreamParser, FlagsOfAnExternalFileMustBeZeroToTwo)
{
    const QList<QStringList> texts_by_error = {
        {u"0"_s, u"disposition:default=0|disposition:forced=2|"_s},
        {u"13"_s, u"disposition:default=0|"_s, u"disposition:forced=0|"_s,
         u"disposition:default=no|disposition:forced=0|"_s},
        {u"9"_s, u"disposition:default=0|disposition:forced=3|"_s, u"disposition:default=-1|disposition:forced=0|"_s},
        {u"6"_s, u"disposition:default=0|disposition:forced=99999|"_s},
    };
    for (const QStringList& texts : texts_by_error)
        for (const QString& text : texts.mid(1))
            EXPECT_EQ(Error_Of([&] { Parse_External_Streams(text, u"/in/a.mp3"_s); }).Number, texts[0].toInt())
                << text.toStdString();
}
