#include "rules/video_list.h"

#include "common/test_program.h"
#include "rules/video_order.h"
#include "rules/video_texts.h"

/// A list of one row for each path; "-" ahead leaves it out, a state behind "=" is set.
static Video_List List_Of(const QStringList& rows)
{
    QStringList paths;
    for (const QString& row : rows)
        paths += row.section(u'=', 0, 0).remove(u'-');
    Video_List list;
    list.Takes_Ticks = true;
    Fill_Videos(list, u"/videos/"_s, paths);
    for (std::size_t i = 0; i < list.Rows.size(); ++i) {
        const QString& row = rows[static_cast<qsizetype>(i)];
        list.Rows[i].Ticked = !row.startsWith(u'-');
        list.Rows[i].State = static_cast<Video_State>(row.section(u'=', 1).toInt());
    }
    return list;
}

static QString Paths_Of(const Video_List& list, const std::vector<int>& numbers)
{
    QStringList paths;
    for (const int number : numbers)
        paths += list.Rows[static_cast<std::size_t>(number)].Path();
    return paths.join(u' ');
}

static QString All_Of(const Video_List& list)
{
    QStringList rows;
    for (const Video_Row& row : list.Rows)
        rows += (row.Ticked ? u""_s : u"-"_s) + row.Path() + u'=' + QString::number(static_cast<int>(row.State));
    return rows.join(u' ');
}

static const QString Done = QString::number(static_cast<int>(Video_State::Done));
static const QString Warning = QString::number(static_cast<int>(Video_State::Warning));
static const QString Failed = QString::number(static_cast<int>(Video_State::Failed));

TEST(VideoList, ARecountKeepsTicksResultsAndWhatItsSourceHasLeft)
{
    struct Case
    {
        QStringList Before;
        QStringList Disk;
        QString After;
    };

    const Case cases[] = {
        {{}, {u"a"_s}, u"a=0"_s},
        {{u"a"_s, u"-b"_s}, {u"a"_s, u"b"_s}, u"a=0 -b=0"_s},
        {{u"a"_s, u"-b"_s}, {u"a"_s, u"aa"_s, u"b"_s, u"c"_s}, u"a=0 aa=0 -b=0 c=0"_s},
        {{u"a="_s + Done, u"b="_s + Failed, u"c"_s}, {u"c"_s, u"d"_s}, u"a=3 c=0 d=0"_s},
        {{u"a"_s, u"b="_s + Warning, u"c"_s}, {u"a"_s, u"c"_s}, u"a=0 b=4 c=0"_s},
        {{u"a="_s + Done, u"b"_s, u"c="_s + Done}, {}, u"a=3 c=3"_s},
        {{u"b"_s, u"a"_s}, {u"a"_s, u"b"_s}, u"a=0 b=0"_s}, // another order loses none
    };
    for (const Case& one : cases) {
        Video_List list = List_Of(one.Before);
        Recount_Videos(list, one.Disk);
        QString after = All_Of(list);
        EXPECT_EQ(after, one.After);
        for (std::size_t i = 0; i < list.Rows.size(); ++i)
            EXPECT_EQ(list.Places.value(list.Rows[i].Path(), -1), static_cast<int>(i));
        EXPECT_FALSE(Recount_Videos(list, one.Disk)) << "nothing has changed since";
    }
}

TEST(VideoList, WhatIsMarkedStaysMarkedAndIsTakenInOrLeftOutAsOne)
{
    Test_Program files;
    Video_List& list = files.Prog.Videos;
    list = List_Of({u"a"_s, u"-b"_s, u"c"_s});
    list.Selected = {1, 2};
    Recount_Videos(list, {u"_"_s, u"a"_s, u"b"_s, u"c"_s});
    EXPECT_EQ(Paths_Of(list, list.Selected), u"b c");
    Take_In_Or_Leave_Out(files.Prog);
    EXPECT_EQ(Ticked_Paths(list).size(), 4);
    Take_In_Or_Leave_Out(files.Prog);
    EXPECT_EQ(Ticked_Paths(list), (QSet<QString>{u"_"_s, u"a"_s}));
    files.Prog.Run.Press_In_Work = true; // a run has taken them as they were
    Take_In_Or_Leave_Out(files.Prog);
    EXPECT_EQ(Ticked_Paths(list).size(), 2);
}

TEST(VideoList, ChipsFilterAndHeadsNarrowAndOrderWhatIsShown)
{
    Video_List list = List_Of({u"One.mkv"_s, u"-two.mkv"_s, u"S1/three.mkv="_s + Failed, u"four.mkv="_s + Done,
                               u"five.mkv="_s + Warning, u"-six.mkv="_s + Done});
    list.Rows[2].Reason = u"no space left"_s;
    list.Rows[0].Bytes = 5;
    list.Rows[3].Bytes = 7;
    list.Rows[0].Problems = {u"odd"_s};
    EXPECT_EQ(Count_Chips(list), (std::array<int, Chip_Count>{6, 1, 2, 1, 1, 1, 1, 0, 0}));
    EXPECT_EQ(Chip_Caption(Video_Chip::Failed, 2), u"Failed 2");

    struct Case
    {
        Video_Chip Chip;
        QString Filter;
        QList<Video_Column> Clicks;
        QString Shown;
    };

    const Case cases[] = {
        {Video_Chip::All, u"mkv"_s, {}, u"One.mkv two.mkv S1/three.mkv four.mkv five.mkv six.mkv"_s},
        {Video_Chip::Done, {}, {}, u"four.mkv six.mkv"_s},
        {Video_Chip::Left_Out, {}, {}, u"two.mkv"_s},
        {Video_Chip::Problems, {}, {}, u"One.mkv"_s},
        {Video_Chip::All, u" ONE "_s, {}, u"One.mkv"_s},
        {Video_Chip::All, u"s1/"_s, {}, u"S1/three.mkv"_s},
        {Video_Chip::All, u"space"_s, {}, u"S1/three.mkv"_s},
        {Video_Chip::Done, u"space"_s, {}, u""_s},
        {Video_Chip::All,
         {},
         {Video_Column::Size, Video_Column::Size},
         u"four.mkv One.mkv two.mkv S1/three.mkv five.mkv six.mkv"_s},
        {Video_Chip::Done, {}, {Video_Column::Video, Video_Column::Video}, u"six.mkv four.mkv"_s},
        {Video_Chip::Done, {}, {Video_Column::Size, Video_Column::Size, Video_Column::Size}, u"four.mkv six.mkv"_s},
    };
    for (const Case& one : cases) {
        Choose_Chip(list, one.Chip);
        Set_Filter(list, one.Filter);
        list.Sorted_By.reset();
        for (const Video_Column column : one.Clicks)
            Sort_Videos(list, column);
        EXPECT_EQ(Paths_Of(list, Shown_Rows(list)), one.Shown);
    }
}

TEST(VideoList, CellsSayWhatIsKnown)
{
    Video_Row row;
    row.Name = u"Film\n.mkv"_s;
    row.Ticked = false;
    EXPECT_EQ(State_Word(row, true), u"Left out");
    EXPECT_EQ(State_Word(row, false), u"Waiting") << "a classic run takes it all the same";
    EXPECT_EQ(Cell_Text(row, Video_Column::Video, true), u"Film\\n.mkv");
    EXPECT_EQ(Cell_Text(row, Video_Column::Length, true), u"");
    row.Forecast = u"replaces Film.mkv"_s;
    EXPECT_EQ(Cell_Text(row, Video_Column::Result, true), u"replaces Film.mkv");
    row.Problems = {u"bad"_s, u"worse"_s};
    EXPECT_EQ(Cell_Text(row, Video_Column::Result, true), u"bad (and 1 more)");
    row.State = Video_State::Done;
    row.Problems.clear();
    row.Forecast.clear();
    row.Output = Native(u"/target/Film.mkv"_s);
    row.Length = 3661.9;
    row.Bytes = 12'400'000;
    row.Seconds_Taken = 72;
    EXPECT_EQ(Cell_Text(row, Video_Column::Result, true), u"Film.mkv  (1:12)");
    row.Pieces = 3;
    EXPECT_EQ(Cell_Text(row, Video_Column::Result, true), u"Film.mkv, 3 pieces  (1:12)");
    EXPECT_EQ(Cell_Text(row, Video_Column::Length, true), u"1:01:01");
    EXPECT_EQ(Cell_Text(row, Video_Column::Size, true), u"12.4 MB");
    row.Reason = u"it failed"_s;
    row.Warnings = {u"careful"_s};
    EXPECT_EQ(Cell_Hint(row, Video_Column::Result), u"it failed\ncareful\n"_s + row.Output);
}

TEST(VideoList, FollowsTheFolderAndLeavesOutWhatNoRunTakes)
{
    Test_Program files;
    for (const char* name : {"b.mkv", "A.MP4", "notes.txt", ".vantorra-x.mkv", "dir.mkv/inner.txt"})
        files.Write(u"videos/"_s + QLatin1StringView(name));
    files.Prog.Settings.Extensions.Careful_Batch = false;
    EXPECT_TRUE(Follow_Videos_Folder(files.Prog));
    EXPECT_EQ(All_Of(files.Prog.Videos), u"A.MP4=0 b.mkv=0");
    EXPECT_FALSE(Follow_Videos_Folder(files.Prog));
    files.Prog.Settings.Extensions.Careful_Batch = true; // which gives a folder its result
    Recount_Videos_Folder(files.Prog);
    EXPECT_EQ(All_Of(files.Prog.Videos), u"A.MP4=0 b.mkv=0 dir.mkv=0");
    files.Prog.Options.Path_Videos.clear();
    EXPECT_TRUE(Follow_Videos_Folder(files.Prog));
    EXPECT_TRUE(files.Prog.Videos.Rows.empty());
}
