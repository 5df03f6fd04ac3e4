#include "inspect/external_probe.h"

#include "common/stand_in_tool.h"
#include "inspect/video_probe.h"

static const QByteArray Probe = "printf 'stream|index=0|codec_type=audio|disposition:default=1|disposition:forced=0|"
                                "tag:handler_name=Sound|tag:x=y\\n'";

TEST(Probes, AFailureIsReportedByItsKindWithItsFileAndLeavesTheLastAnswer)
{
    Test_Program test;
    test.Prog.Options.Log_Verbosity = 1;
    test.Prog.Tools.FFProbe_Path = test.Path(u"missing"_s);
    EXPECT_EQ(Run_FFProbe_Video(test.Prog, u"/v/a b.mkv"_s), 0);
    EXPECT_EQ(Run_FFProbe_ExtAudio(test.Prog, u"/v/a.mp3"_s), 0);
    EXPECT_EQ(test.Prog.Media.ExtAudioInfo.Language, u"und"_s) << "also ahead of the first probe";
    test.Prog.Tools.FFProbe_Path = Write_Stand_In(test, u"ffprobe"_s, Probe);
    Run_FFProbe_ExtAudio(test.Prog, u"/v/a.mp3"_s);
    test.Prog.Tools.FFProbe_Path = Write_Stand_In(test, u"silent"_s, "exit 1");
    EXPECT_EQ(Run_FFProbe_ExtAudio(test.Prog, u"/v/b.mp3"_s), 0);
    EXPECT_EQ(Run_FFProbe_ExtSubtitle(test.Prog, u"/v/b.srt"_s), 0);
    EXPECT_EQ(test.Prog.Media.ExtAudioInfo.HandlerName, u"Sound"_s);
    test.Prog.Tools.FFProbe_Path = Write_Stand_In(test, u"killed"_s, "kill -9 $$");
    EXPECT_EQ(Run_FFProbe_Video(test.Prog, u"/v/a b.mkv"_s), 0);
    EXPECT_EQ(test.Codes(), (QList<int>{12, 12, 13, 13, 13}));
    EXPECT_TRUE(test.Person.Messages[3].Text.endsWith(u"File: /v/b.srt"_s));
    EXPECT_TRUE(test.Results().join(u'\n').contains(u"/v/b.srt"_s));
    EXPECT_EQ(test.Results().count(u"            \"/v/a b.mkv\""_s), 2);
}
