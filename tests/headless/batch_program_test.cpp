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

TEST(Batch_Program, APresetIsTakenByItsNameAndSetWinsOverIt)
{
    const Test_Program test;
    test.Write(u"app/presets/A & b.ini"_s, "[Other Options]\nSet Custom File Title Text=\"\"q\" \"\n");
    test.Write(u"app/presets/bad.ini"_s, "[Audio]\nAdd Audio Files=perhaps\n");
    const QString title = u"Other Options/Set Custom File Title Text"_s;
    const std::tuple<QStringList, int, QString> claims[] = {
        {{u"presets"_s}, 0, u"A & b bad"_s},
        {{u"presets"_s, u"--json"_s}, 0, u"{\"event\":\"preset\",\"name\":\"bad\",\"path\":\""_s},
        {{u"settings"_s, u"--preset"_s, u"a & b"_s}, 0, title + u" \"q\" "_s},
        {{u"settings"_s, u"--set"_s, title + u"=x"_s, u"--preset=A & b"_s}, 0, title + u" x "_s},
        {{u"settings"_s, u"--preset"_s, u"bed"_s}, Exit_Bad_Usage, u"no such preset (vantorra-batch presets"_s},
        {{u"--preset"_s, u"../Vantorra"_s}, Exit_Bad_Usage, u"no such preset"_s},
        {{u"--preset"_s, u"bad"_s}, Exit_Run_Time_Error, u"[Audio] \"Add Audio Files\""_s},
    };
    for (const auto& [arguments, exit, said] : claims) {
        Memory_Stream out;
        const QStringList line = QStringList{u"vantorra-batch"_s, u"--app-folder"_s, test.Path(u"app"_s)} + arguments;
        EXPECT_EQ(Run_Batch_Program(line, out.Stream(), out.Stream(), [] { return false; }), exit);
        EXPECT_TRUE(out.Text().simplified().contains(said)) << out.Text().toStdString();
    }
}
