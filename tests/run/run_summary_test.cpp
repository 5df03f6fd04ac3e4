#include "run/run_summary.h"

#include "common/test_program.h"

TEST(Run_Summary, TheLineLeavesOutWhatIsUnknownOrZero)
{
    const Run_Tally third{.Counts = {.Done = 2, .Bytes = 300},
                          .Files = 4,
                          .Index = 3,
                          .Percent = 50,
                          .Bytes_In_All = 1000,
                          .Bytes_Past = 400,
                          .Bytes_In_Work = 200};
    Run_Tally odd = third;
    odd.Counts = {.Warnings = 1, .Failed = 1};
    odd.Percent = 0;

    struct Moment
    {
        Run_Tally Tally;
        int Seconds;
        QString Text;
    };

    const Moment moments[] = {
        {{}, 90, u""_s},
        {{.Counts = {}, .Files = 4, .Index = 1}, 90, u"1 of 4"_s},
        {third, 4, u"3 of 4"_s},
        {third, 80, u"3 of 4 \u00B7 1:40 left"_s},
        {third, -80, u"3 of 4"_s}, // the clock was set back
        {odd, 80, u"3 of 4 \u00B7 1 with warnings \u00B7 1 failed"_s},
    };
    Test_Program test;
    test.Prog.Run.Started = QDateTime(QDate(2026, 3, 7), QTime(13, 0));
    for (const Moment& moment : moments) {
        test.Prog.Run.Tally = moment.Tally;
        test.Prog.Now = [&] { return test.Prog.Run.Started.addSecs(moment.Seconds); };
        Show_Running_Summary(test.Prog);
        EXPECT_EQ(test.Prog.Form.lbl_RunSummary.Caption, moment.Text);
    }
    EXPECT_EQ(test.Prog.Form.Summary, Summary_Look::Failures);
}
