#include "headless/batch_program.h"

#include "common/test_program.h"
#include "headless/exit_status.h"
#include "headless/memory_stream.h"

TEST(Batch_Program, AnAnswerThatDoesNotGetThroughIsNeverASuccess)
{
    const struct
    {
        QStringList Arguments;
        const char* Out;
        int Exit;
        QString Said;
    } claims[] = {
        {{u"--help"_s}, "/dev/full", Exit_Run_Time_Error, u"could not be written to its end"_s},
        {{u"settings"_s}, "/dev/full", Exit_Run_Time_Error, u"could not be written to its end"_s},
        {{u"settings"_s, u"--json"_s}, "/dev/full", Exit_Run_Time_Error, u"could not be written to its end"_s},
        {{u"settings"_s}, "/dev/null", Exit_Finished, {}},
        {{u"log"_s}, "/dev/null", Exit_Finished, u"there is no log in "_s},
        {{u"--set"_s, u"Audio/Add Audio Files=ja"_s}, "/dev/null", Exit_Bad_Usage, u"takes no such value"_s},
        {{u"no\u202Ecommand"_s}, "/dev/null", Exit_Bad_Usage, u"no\\u202Ecommand"_s},
    };

    for (const auto& claim : claims) {
        const Test_Program test;
        Memory_Stream err;
        std::FILE* const out = std::fopen(claim.Out, "w");
        const QStringList folder = {u"--app-folder"_s, test.Path(u"app"_s)};
        EXPECT_EQ(Run_Batch_Program(QStringList{u"vantorra-batch"_s} + claim.Arguments + folder, out, err.Stream(),
                                    [] { return false; }),
                  claim.Exit)
            << claim.Arguments.join(u' ').toStdString();
        std::fclose(out);
        EXPECT_TRUE(err.Text().contains(claim.Said)) << err.Text().toStdString();
    }
}
