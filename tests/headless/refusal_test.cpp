#include "headless/refusal.h"

#include "common/test_program.h"
#include "headless/batch_options.h"

TEST(Refusal, NamesWhatTheMessageBoxesHaveNotSaid)
{
    Test_Program test;
    const QString tool = test.Write(u"app/tool"_s);
    const QString gone = test.Path(u"gone"_s);
    const QString videos = test.Path(u"videos/"_s);
    const QString target = test.Path(u"target/"_s);

    const struct
    {
        QString Videos, Target, FFProbe, Mkvmerge, Said;
    } cases[] = {
        {videos, target, tool, tool, u"no file with a video's extension"_s},
        {videos, target, gone, tool, {}},
        {videos, target, tool, gone, {}},
        {{}, target, tool, tool, u"--videos"_s},
        {{}, {}, gone, tool, u"--videos"_s},
        {videos, {}, tool, tool, u"--target"_s},
    };

    for (const auto& claim : cases) {
        test.Prog.Options.Path_Videos = claim.Videos;
        test.Prog.Options.Path_Target = claim.Target;
        test.Prog.Tools.FFProbe_Path = claim.FFProbe;
        test.Prog.Tools.System_MKVMerge_Path = claim.Mkvmerge;
        const QString said = Explain_Refusal(test.Prog, {});
        EXPECT_EQ(said.isEmpty(), claim.Said.isEmpty()) << &claim - cases << ": " << said.toStdString();
        EXPECT_TRUE(said.contains(claim.Said)) << &claim - cases << ": " << said.toStdString();
    }
}
