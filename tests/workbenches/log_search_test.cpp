#include "workbenches/log_search.h"

#include "common/test_program.h"
#include "tools/failure_reports.h"
#include "workbenches/log_find_bar.h"
#include "workbenches/log_viewer.h"

namespace {

TEST(Log_Search, ALineIsToldByItsOwnWordsAndNotByANameInIt)
{
    using enum Log_Line;
    const std::pair<QString, Log_Line> lines[] = {
        {u"This entry generated on - Nov/21/2026 08:15:00 AM local time by Vantorra ver 2.5.5"_s, Head},
        {u"        -- This entry generated on - \"x\""_s, Plain},
        {u"            -- FAILED - \"/v/a.mkv\" - ffprobe ended with status 1"_s, Fault},
        {u"            *** Not processed: /v/a.mkv is a source"_s, Fault},
        {u"            *** the run stopped: a tool couldn't be started three times in a row"_s, Fault},
        {u"        -- The Video path and the Target path do not exist!"_s, Fault},
        {u"              Error: The file '/v/a.mkv' could not be opened."_s, Fault},
        {u"              Warning: '/v/a.mkv': the timestamps are odd."_s, Warning},
        {u"            -- WARNING: a.mkv and A.mkv write the same file"_s, Warning},
        {u"            -- \"a.srt\" stays: the trash refused it"_s, Warning},
        {u"*** Process halted before finishing!"_s, Warning},
        {u"            *** Audio Options file is used."_s, Plain},
        {u"            -- Processing video file - \"/v/-- FAILED - Error: is cancelled.\""_s, Plain},
        {u"              '/v/Error: 1.mkv': Using the demultiplexer for Matroska is cancelled."_s, Plain},
        {u""_s, Plain},
    };
    for (const auto& [line, kind] : lines)
        EXPECT_EQ(Kind_Of_Line(line), kind) << line.toStdString();

    Test_Program test;
    test.Prog.Options.Log_Verbosity = 1;
    int reports = 0;
    for (int code = 1; code < 100; ++code) {
        test.Prog.Logs.Log_Results.Clear();
        if (Report_Run_Failure(test.Prog, code, u"FFProbe"_s, u"/v/a.mkv"_s); test.Results().isEmpty())
            continue;
        ++reports;
        EXPECT_GT(Rows_Of_Kind(test.Results(), Fault).size(), 0U) << test.Results().join(u'\n').toStdString();
    }
    EXPECT_GT(reports, 10);
}

TEST(Log_Search, OneGoesOnFromWhereOneIsAndRoundTheEnds)
{
    const std::tuple<int, bool, int> steps[] = {{-1, false, 0}, {2, false, 1}, {3, false, 1}, {9, false, 0},
                                                {-1, true, 2},  {2, true, 2},  {5, true, 0},  {99, true, 2}};
    for (const auto& [row, back, place] : steps)
        EXPECT_EQ(Next_Place({2, 5, 9}, row, back), place) << row << back;
    EXPECT_EQ(Next_Place({}, 1, false), -1);

    frm_ProcessLog form;
    form.lst_ProcessLog = {u"This entry generated on - B local time by V"_s, u"a Film"_s,
                           u"This entry generated on - odd"_s, u"film. a"_s, u"-- FAILED - \"x\""_s};
    form.Selected_Row = 0;
    Look_Through_Lines(form);
    ASSERT_EQ(form.lst_Entries.size(), 2U);
    EXPECT_EQ(form.lst_Entries[0].Caption + form.lst_Entries[1].Caption, u"Bodd"_s);
    ProcessLog_txt_Find_Change(form, u"FILM"_s);
    EXPECT_EQ(form.lbl_Place.Caption, u"Found 1 of 2"_s);
    ProcessLog_txt_Find_Change(form, u"film."_s);
    EXPECT_EQ(form.Selected_Row, 3) << "a point is a point";
    EXPECT_EQ(form.Entry_Row, 1);
    ProcessLog_Next_Fault(form, true);
    EXPECT_EQ(form.Selected_Row, 4);
    ProcessLog_txt_Find_Change(form, u"none"_s);
    EXPECT_EQ(form.lbl_Place.Caption, u"Found: none in these 5 lines"_s);
    EXPECT_EQ(form.Selected_Row, 4);
}

} // namespace
