#include "workbenches/track_table.h"

#include "common/media.h"
#include "common/stand_in_tool.h"
#include "workbenches/video_info_viewer.h"
#include "workbenches/video_tracks.h"

namespace {

FileInfo Stream(const QString& type, const QString& language, const QString& bits = {})
{
    FileInfo stream;
    stream.StreamType = type;
    stream.Language = language;
    stream.BitRate = bits;
    return stream;
}

/// "Video|Type|Language|Bitrate" of each row.
QStringList Rows_Of(const Track_Table& table)
{
    QStringList rows;
    for (const Track_Row& row : table.Rows) {
        QStringList cells;
        for (const Track_Column column :
             {Track_Column::Video_Name, Track_Column::Type, Track_Column::Language, Track_Column::Bitrate})
            cells += Cell_Text(table, row, column);
        rows += cells.join(u'|');
    }
    return rows;
}

TEST(Track_Tables, WhatIsUnlikeTheOthersIsMarked)
{
    const FileInfo head;
    FileInfo font = Stream(u"attachment"_s, {});
    font.FileName = u"a\nb.ttf"_s;
    const Asked_Video videos[] = {
        Table_Video(u"E1"_s, {head, Stream(u"audio"_s, u"ger"_s, u"384000"_s), Stream(u"subtitle"_s, u"eng"_s), font}),
        Table_Video(u"E2"_s, {head, Stream(u"audio"_s, u"ger"_s, u"448000"_s), Stream(u""_s, {}),
                              Stream(u"subtitle"_s, u"eng"_s), font}),
        Table_Video(u"E3"_s, {head, Stream(u"audio"_s, u"eng"_s, u"96000"_s), Stream(u"audio"_s, u"ger"_s), font}),
        {.Name = u"E4"_s, .Why_Not = u"it is\nbroken"_s, .Notes = {}, .Tracks = {}},
    };
    Track_Table table;
    for (const Asked_Video& video : videos)
        table.Videos.push_back(&video);
    Compare_Tracks(table);
    EXPECT_EQ(Rows_Of(table),
              (QStringList{u"E1|audio|ger|384 kb/s"_s, u"E1|subtitle|eng|"_s, u"E1|attachment||"_s,
                           u"E2|audio|ger|448 kb/s"_s, u"E2|subtitle|eng|"_s, u"E2|attachment||"_s,
                           u"E3|audio|\u2260 eng|\u2260 96 kb/s"_s, u"E3|\u2260 audio|ger|"_s, u"E3|attachment||"_s,
                           u"E3|\u2260 no subtitle 1||"_s, u"E4|it is\\nbroken||"_s}));
    EXPECT_EQ(Table_Summary(table), u"4 videos; 1 differs: E3; 1 can't be read: E4"_s);
    EXPECT_EQ(Cell_Hint(table, table.Rows[6], Track_Column::Language), u"\u2260 eng (usual: ger)"_s);
    EXPECT_EQ(Cell_Text(table, table.Rows[2], Track_Column::Name), u"a\\nb.ttf"_s);

    table.Videos = {&videos[0], &videos[2]};
    Compare_Tracks(table);
    EXPECT_EQ(Table_Summary(table), u"2 videos; 2 differ: E1, E3"_s) << "each has what the other hasn't";
    table.Videos = {&videos[2]};
    Compare_Tracks(table);
    EXPECT_EQ(Table_Summary(table), QString());
}

struct Tracks_Test : testing::Test, Test_Program
{
    frm_ViewVFI Form;

    /// Opens the form with the table in front, and asks about all that is picked there.
    void Ask(const std::vector<int>& rows)
    {
        ViewVFI_Activate(Prog, Form);
        ViewVFI_Show_Table(Prog, Form, true);
        ViewVFI_Pick(Prog, Form, rows, rows.front());
        while (Is_To_Ask(Form))
            ViewVFI_Ask_Next(Prog, Form);
    }
};

TEST_F(Tracks_Test, TheRealToolsFillTheTableAndABrokenVideoSaysWhy)
{
    Use_Real_Tools(*this);
    Place(*this, Rich_Video(), u"videos/E1.mkv"_s);
    Place(*this, Short_Video(), u"videos/E2.mkv"_s);
    Write(u"videos/E3.mkv"_s, "no video");
    Ask({0, 1, 2});
    const Track_Table& table = Form.Tracks.Table;
    const auto cells = [&table](std::size_t row) {
        QStringList texts;
        for (std::size_t column = 1; column < Track_Column_Count - 1; ++column)
            texts += Cell_Text(table, table.Rows[row], static_cast<Track_Column>(column)).remove(u"\u2260 "_s);
        return texts.join(u'|');
    };
    ASSERT_GT(table.Rows.size(), 5U);
    EXPECT_TRUE(cells(0).startsWith(u"0|video|"_s) && cells(0).endsWith(u"|64x48"_s)) << cells(0).toStdString();
    EXPECT_TRUE(cells(1).startsWith(u"1|audio|"_s) && cells(1).contains(u"|eng|"_s) && cells(1).endsWith(u" ch"_s));
    EXPECT_EQ(table.Rows.back().What, Track_Row::Kind::Why_Not);
    EXPECT_TRUE(Cell_Text(table, table.Rows.back(), Track_Column::Type).startsWith(u"ffprobe"_s));
    EXPECT_TRUE(Person.Messages.empty());
    EXPECT_TRUE(Form.lbl_Told.Caption.startsWith(u"3 videos; "_s)) << Form.lbl_Told.Caption.toStdString();
}

TEST_F(Tracks_Test, AVideoIsAskedAboutOnceAndNotAtAllBehindTheText)
{
    Prog.Tools.FFProbe_Path = Write_Stand_In(*this, u"app/ffprobe"_s,
                                             "echo x >> \"" + Path_In_Script(Path(u"asked"_s)) +
                                                 "\"\n[ -e \"${0%.exe.sh}.slow\" ] && exec sleep 30\n"
                                                 "echo '{\"streams\":[{\"index\":0,\"codec_type\":\"video\"}]}'\n");
    for (const char* name : {"videos/a.mkv", "videos/b.mkv", "videos/c.mkv"})
        Write(QLatin1StringView(name));
    Ask({0, 1});
    ViewVFI_Pick(Prog, Form, {0, 1, 2}, 2);
    EXPECT_TRUE(Is_To_Ask(Form));
    ViewVFI_Show_Table(Prog, Form, false);
    EXPECT_FALSE(Is_To_Ask(Form));
    ViewVFI_Show_Table(Prog, Form, true);
    ViewVFI_Ask_Next(Prog, Form);
    EXPECT_EQ(Form.lbl_Told.Caption, u"3 videos with the same tracks"_s);
    EXPECT_EQ(Read(u"asked"_s).count('x'), 3);

    Write(u"videos/d.mkv"_s);
    ViewVFI_btn_Done(Prog, Form);
    for (const QString& name : {u"a.mkv"_s, u"gone.mkv"_s, u"d.mkv"_s})
        Prog.Videos.Rows.emplace_back().Name = name;
    Prog.Videos.Selected = {0, 1, 2};
    Prog.Videos.To_Show = Path(u"videos/a.mkv"_s);
    ViewVFI_Activate(Prog, Form);
    EXPECT_EQ(Form.Picked, (std::vector{0, 3})) << "what is marked in the window's list";
    ViewVFI_btn_Done(Prog, Form);
    Write(u"app/ffprobe.slow"_s);
    Person.On_Pump = [this] { ViewVFI_Stop_Asking(Prog, Form); };
    ViewVFI_Activate(Prog, Form);
    ViewVFI_Pick(Prog, Form, {1, 3}, 1);
    ViewVFI_Ask_Next(Prog, Form);
    EXPECT_TRUE(Is_To_Ask(Form)) << "what was cut short is no answer";
    EXPECT_FALSE(Prog.Run.Halt_Requested);
}

} // namespace
