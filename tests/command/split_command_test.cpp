#include "command/split_command.h"

#include "command/native_command.h"
#include "common/test_program.h"

static const QString Split_Video =
    u"stream|index=0|codec_type=video|disposition:attached_pic=0|tag:language=???|tag:x=y\r\n"_s;
static const QString Split_Audio = u"stream|index=1|codec_type=audio|tag:language=???|tag:x=y\r\n"_s;
static const QString Split_Subtitle = u"stream|index=2|codec_type=subtitle|tag:language=eng|tag:x=y\r\n"_s;

TEST(SplitCommand, OnlyLanguagesThePiecesAndTheOrderAreWritten)
{
    Test_Program test;
    JobOptions& options = test.Prog.Options;
    options.Split_Minutes = u"30"_s;
    // None of these has any effect here.
    options.AudioFilterMode = 1;
    options.chk_RemoveAllTags.Value = options.chk_RemoveFileTitle.Value = options.chk_AddSubs.Value = 1;

    const std::tuple<QString, QString, QString> claims[] = {
        {u"/in/Movie.avi"_s, Split_Video + Split_Audio + Split_Subtitle,
         u" --ui-language en_US --output /out/Movie.mkv --language 0:??? --language 1:und ( /in/Movie.avi )"
         " --split duration:1800s --track-order 0:0,0:1"_s},
        {u"/in/My Movie.mkv"_s, Split_Video + Split_Subtitle,
         u" --ui-language en_US --output \"/out/My Movie.mkv\" --language 0:??? ( \"/in/My Movie.mkv\" )"
         " --split duration:1800s --track-order 0:0"_s},
        {u"/in/Movie.MKV"_s, Split_Subtitle,
         u" --ui-language en_US --output /out/MKV.mkv ( /in/Movie.MKV ) --split duration:1800s"_s},
    };
    for (const auto& [path, streams, text] : claims) {
        test.Prog.Logs.Log_Faults.Clear();
        test.Prog.Media.FFProbe_Output = u"format|filename=x\r\n"_s + streams;
        EXPECT_EQ(Split_Video_Mod(test.Prog, Native(u"/out/"_s), Native(u"/in/"_s), Native(path)), 1);
        EXPECT_EQ(test.Prog.Run.Mkvmerge_Arguments.Text(), Native_Command(text));
        EXPECT_EQ(test.Faults(), QStringList(u"-- Processing video file - \""_s + Native(path) + u'"'));
    }
}

TEST(SplitCommand, MinutesBecomeSecondsInPlainNumberForm)
{
    EXPECT_EQ(Split_Duration(u"999"_s), u"duration:59940s"_s);
    EXPECT_EQ(Split_Duration(u" 0.05 "_s), u"duration:3s"_s);
    EXPECT_EQ(Error_Of([] { Split_Duration(u"soon"_s); }).Number + Error_Of([] { Split_Duration(u""_s); }).Number, 26);
}
