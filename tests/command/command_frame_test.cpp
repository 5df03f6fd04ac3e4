#include "command/command_frame.h"

#include "command/native_command.h"
#include "command/track_order.h"
#include "common/test_program.h"

static const QString Format_Line = u"format|filename=/in/Movie.avi|duration=1.0|tag:title=Old\r\n"_s;
static const QString Video_Line = u"stream|index=0|codec_type=video|width=1920|height=1080|disposition:default=1"
                                  "|disposition:forced=0|disposition:attached_pic=0|tag:language=eng|tag:x=y\r\n"_s;
static const QString Audio_Line = u"stream|index=1|codec_type=audio|disposition:default=1|disposition:forced=0"
                                  "|tag:language=eng|tag:x=y\r\n"_s;
static const QString Subtitle_Line = u"stream|index=2|codec_type=subtitle|disposition:default=0|disposition:forced=0"
                                     "|tag:language=eng|tag:x=y\r\n"_s;

/// The command of one video, from ffprobe's text.
static QString Command_Of(Test_Program& test, const QString& ffprobe_output, const QString& video_path)
{
    test.Prog.Media.FFProbe_Output = ffprobe_output;
    EXPECT_EQ(Parse_VideoData_A(test.Prog, Native(u"/out/"_s), Native(u"/in/"_s), Native(video_path)), 1);
    return test.Prog.Run.Mkvmerge_Arguments.Text();
}

TEST(CommandFrame, OptionsStandInTheirPlaces)
{
    Test_Program test;
    JobOptions& options = test.Prog.Options;
    options.AudioFilterMode = options.SubsFilterMode = 1;
    options.chk_RemoveAllTags.Value = options.chk_RemoveAllAttachments.Value = options.chk_StripChaps.Value = 1;
    options.chk_SetFileTitle.Value = options.chk_SetVideoTitle.Value = 1;
    options.opt_SetFileTitle.Selected = options.opt_SetVideoTitle.Selected = 2;
    EXPECT_EQ(
        Command_Of(test, Format_Line + Video_Line + Audio_Line + Subtitle_Line, u"/in/My Movie.avi"_s),
        Native_Command(u" --ui-language en_US --output \"/out/My Movie.mkv\" --no-audio --no-subtitles --no-track-tags"
                       " --no-attachments --no-chapters --language 0:eng --default-track 0:yes"
                       " --display-dimensions 0:1920x1080 --track-name  \"0:\\\"My Movie\\\"\""
                       " ( \"/in/My Movie.avi\" ) --title \"\\\"My Movie\\\"\""_s));
}

TEST(CommandFrame, NothingIsTouchedWhereFfprobeSaidNothing)
{
    Test_Program test;
    const QString before = Command_Of(test, Format_Line + Video_Line, u"/in/Movie.avi"_s);
    test.Prog.Media.FFProbe_Output.clear();
    EXPECT_EQ(Parse_VideoData_A(test.Prog, Native(u"/out/"_s), Native(u"/in/"_s), Native(u"/in/Other.avi"_s)), 0);
    EXPECT_EQ(test.Prog.Run.Mkvmerge_Arguments.Text(), before);
    EXPECT_EQ(test.Prog.Run.Output_Path, Native(u"/out/Movie.mkv"_s));
}

TEST(CommandFrame, AStreamTextMadeToSmuggleOptionsStaysInItsArguments)
{
    Test_Program test;
    test.Prog.Options.chk_CustomFileTitle.Value = 1;
    test.Prog.Options.Custom_File_Title = u"@Film"_s;
    // A title that ends in "stream" makes an element of what follows it, index and all.
    Command_Of(test,
               Format_Line + Video_Line +
                   u"stream|index=1|codec_type=audio|tag:title=x stream|tag:a=codec_type=audio "
                   "index=@/tmp/evil|tag:language=eng --attach-file /etc/passwd|tag:x=y\r\n"_s,
               u"/in/Movie.avi"_s);
    for (const QString& argument : test.Prog.Run.Mkvmerge_Arguments.Arguments()) {
        EXPECT_FALSE(argument.startsWith(u'@')) << argument.toStdString();
        EXPECT_FALSE(QStringList({u"--attach-file"_s, u"/etc/passwd"_s, u"--title"_s}).contains(argument));
    }
    EXPECT_EQ(test.Faults().filter(u"\"@Film\""_s).size(), 1);
    EXPECT_GT(test.Faults().size(), 1);
}

TEST(TrackOrder, PiecesAreJoinedAndTheirCommasCollapsed)
{
    const std::pair<QString, QString> claims[] = {
        {u"0:0,||0:1,||0:2,|"_s, u"0:0,0:1,0:2"_s},
        {u"0:0,|,1:0|0:1,|,2:0,3:0||,4:0"_s, u"0:0,1:0,0:1,2:0,3:0,4:0"_s},
        {u"0:0,|||,1:0||"_s, u"0:0,1:0"_s},
        {u"|||,1:0||,2:0"_s, u",1:0,2:0"_s},
        {u"|||||"_s, u""_s},
        {u"0:0,||"_s, u"0:0"_s},
    };
    for (const auto& [pieces, text] : claims)
        EXPECT_EQ(Join_Order(pieces.split(u'|')), text) << pieces.toStdString();
}
