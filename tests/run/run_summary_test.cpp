#include "run/run_summary.h"

#include "common/test_program.h"
#include "rules/video_list.h"
#include "run/video_list_watch.h"

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

TEST(Run_Summary, OfSeveralVideosInWorkEachRowHasItsPercentAndTheLastMinuteTellsTheTimeLeft)
{
    Test_Program test;
    Program& program = test.Prog;
    Video_List_Watch watch(program);
    program.Run.Careful = true;
    program.Run.At_Once = 2;
    program.Run.Started = QDateTime(QDate(2026, 3, 7), QTime(13, 0));
    const auto at = [&program](int seconds) {
        program.Now = [=, &program] { return program.Run.Started.addSecs(seconds); };
    };
    at(0);
    QStringList sources;
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
        sources += test.Write(u"videos/"_s + name, QByteArray(1000, 'x'));
    Fill_Videos(program.Videos, test.Path(u"videos/"_s), {u"a"_s, u"b"_s, u"c"_s});
    watch.Videos_Chosen(sources);
    watch.Run_Started(3);
    for (int index : {1, 2})
        watch.File_Started(index, sources[index - 1]);
    // Slow at first: what is older than a minute counts no more.
    at(100);
    watch.Progress(sources[0], 10, 3);
    at(130);
    watch.Progress(sources[1], 40, 16);
    at(160);
    watch.Progress(sources[0], 40, 26);
    EXPECT_EQ(program.Form.lbl_RunSummary.Caption, u"2 of 3 \u00B7 3:09 left"_s); // 2200 bytes, at 700 a minute
    watch.File_Finished({.Source = sources[1], .Status = File_Outcome::Kind::Done});
    const auto& rows = program.Videos.Rows;
    EXPECT_TRUE(rows[0].State == Video_State::Working && rows[0].Percent == 40);
    EXPECT_TRUE(rows[1].State == Video_State::Done && rows[2].State == Video_State::Waiting);
}
