#include "headless/refusal.h"

#include "common/test_program.h"
#include "headless/batch_options.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Refusal, NamesWhatTheMessageBoxesHaveNotSaid)
{
    Test_Program test;
    Program& program = test.Prog;
    const QString tool = test.Write(u"app/tool"_s);
    const QString gone = test.Path(u"gone"_s);
    const QString videos = program.Options.Path_Videos;

    const struct
    {
        const char* Case;
        QString Videos, Target, FFProbe, Mkvmerge, Said;
    } cases[] = {
        {"a folder without videos", videos, test.Path(u"target/"_s), tool, tool, u"no file with a video's extension"_s},
        {"no ffprobe", videos, test.Path(u"target/"_s), gone, tool, {}},
        {"no mkvmerge", videos, test.Path(u"target/"_s), tool, gone, {}},
        {"no video folder", {}, test.Path(u"target/"_s), tool, tool, u"--videos"_s},
        {"no video folder and no ffprobe", {}, {}, gone, tool, u"--videos"_s},
        {"no target", videos, {}, tool, tool, u"--target"_s},
    };

    for (const auto& claim : cases) {
        program.Options.Path_Videos = claim.Videos;
        program.Options.Path_Target = claim.Target;
        program.Tools.FFProbe_Path = claim.FFProbe;
        program.Tools.System_MKVMerge_Path = claim.Mkvmerge;
        const QString said = Explain_Refusal(program, {});
        EXPECT_EQ(said.isEmpty(), claim.Said.isEmpty()) << claim.Case << ": " << said.toStdString();
        EXPECT_TRUE(said.contains(claim.Said)) << claim.Case << ": " << said.toStdString();
    }
}
