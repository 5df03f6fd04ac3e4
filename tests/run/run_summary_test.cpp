#include "run/run_summary.h"

#include "common/test_program.h"

TEST(Run_Summary, TheLineLeavesOutWhatIsUnknownOrZero)
{
    Run_Tally third{};
    third.Counts.Bytes = 300;
    third.Files = 4;
    third.Index = 3;
    third.Bytes_In_All = 1000;
    third.Bytes_Past = 400;
    third.In_Work = {{u"c.mkv"_s, {.Bytes = 200, .Percent = 50}}};
    Run_Tally odd = third;
    odd.Counts = {.Warnings = 1, .Failed = 1};
    odd.In_Work = {};
    const std::tuple<Run_Tally, int, QString> moments[] = {
        {{}, 90, u""_s},
        {third, 4, u"3 of 4"_s},
        {third, 80, u"3 of 4 \u00B7 1:40 left"_s},
        {third, -80, u"3 of 4"_s}, // the clock was set back
        {odd, 80, u"3 of 4 \u00B7 1 with warnings \u00B7 1 failed"_s},
    };
    for (const auto& [tally, seconds, text] : moments) {
        Test_Program test;
        test.Prog.Run.Started = QDateTime(QDate(2026, 3, 7), QTime(13, 0));
        test.Prog.Run.Tally = tally;
        test.Prog.Now = [then = test.Prog.Run.Started.addSecs(seconds)] { return then; };
        Show_Running_Summary(test.Prog);
        EXPECT_EQ(test.Prog.Form.lbl_RunSummary.Caption, text);
        EXPECT_EQ(test.Prog.Form.Summary == Summary_Look::Failures, text.endsWith(u"failed"_s));
    }
}
