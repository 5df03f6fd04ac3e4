#include "workbenches/option_editor.h"

#include "common/test_program.h"
#include "workbenches/option_cells.h"
#include "workbenches/option_list.h"
#include "workbenches/option_marks.h"
#include "workbenches/option_steps.h"

#include <QDir>

namespace {

/// An editor over the test's video folder, opened for audio files.
struct Editor_Test : Test_Program
{
    Editor_Test() { Load_Language_Table(Prog.Language_Table, u"scrap"_s); }

    Option_Editor& Editor() { return Prog.Option_Files; }

    /// Opens the editor; `in_form` is what the operator does in it.
    void Edit(const std::function<void()>& in_form)
    {
        Person.On_Form[u"frm_OptionsFiles"_s] = [this, in_form] {
            Activate_Option_Editor(Prog);
            in_form();
            Close_Option_Editor(Prog, {});
        };
        ASSERT_TRUE(Open_Audio_Option_Editor(Prog, u"NOP"_s));
    }

    void Select(std::vector<int> rows) { lvw_Files_Selection_Change(Prog, std::move(rows)); }

    void Type(Option_Slot slot, const QString& text) { Option_Box_Change(Editor(), slot, text); }

    QStringList Listed() const
    {
        QStringList rows;
        for (const OptionFileRow& row : Prog.Option_Files.lvw_Files)
            rows += row.FileName + u'|' + row.OptionFileName;
        return rows;
    }

    /// Texts of the five boxes, a set box in square brackets.
    QString Boxes() const
    {
        QStringList texts;
        for (const Option_Box& box : Prog.Option_Files.Boxes)
            texts += box.Set ? u'[' + box.Text + u']' : box.Text;
        return texts.join(u'/');
    }
};

} // namespace

TEST(OptionEditor, ListsMediaFilesThenOrphansInOrderOfNames)
{
    Editor_Test test;
    for (const char* name :
         {"b.mp3", "a.mp3", "a.mp3.opt", "C.flac", "gone.ogg.opt", "b.mp3.OPT", "x.srt", "y.srt.opt"})
        test.Write(u"videos/"_s + QString::fromLatin1(name));
    test.Edit([&] {
        EXPECT_EQ(test.Listed(),
                  (QStringList{u"C.flac|"_s, u"a.mp3|a.mp3.opt"_s, u"b.mp3|b.mp3.OPT"_s, u"|gone.ogg.opt"_s}));
        EXPECT_EQ(test.Editor().Focus, u"btn_Close"_s);
    });
}

TEST(OptionEditor, TheAlternateFolderIsScannedOrElseNothingOpens)
{
    Editor_Test test;
    test.Prog.Options.chk_SubsPath.Value = 1;
    EXPECT_FALSE(Open_Subtitle_Option_Editor(test.Prog, u"NOP"_s));
    EXPECT_TRUE(test.Person.Forms.isEmpty());

    test.Write(u"subs/a.srt"_s);
    test.Write(u"subs/a.idx.opt"_s);
    test.Prog.Options.Path_Subtitles = test.Path(u"subs/"_s);
    test.Person.On_Form[u"frm_OptionsFiles"_s] = [&] {
        Activate_Option_Editor(test.Prog);
        EXPECT_EQ(test.Listed(), (QStringList{u"a.srt|"_s, u"|a.idx.opt"_s}));
        EXPECT_EQ(test.Editor().Kind.Form_Caption, u"Create and Edit Subtitle Options Files"_s);
    };
    EXPECT_TRUE(Open_Subtitle_Option_Editor(test.Prog, u"NOP"_s));
}

TEST(OptionEditor, AppliesToOneRowAllBoxesAndToSeveralTheSetOnes)
{
    const QByteArray title = "Title=One\r\n";
    const QByteArray german = "Language=German (ger)\r\n";
    const QByteArray delay = "Delay=7\r\n";

    struct Claim
    {
        std::vector<int> Rows;
        QString Typed;   ///< "box=text|box=text"
        QByteArray A, B; ///< option files before and after; null: none
        QByteArray A_After, B_After;
        QString Listed; ///< whose option files are in the list afterwards
    };

    const Claim claims[] = {
        {{0}, {}, {}, {}, {}, {}, u""_s},
        {{0},
         u"0=One\nand\r\nmore|3=YES|4=-5"_s,
         {},
         {},
         "Title=One and more\r\nForced=YES\r\nDelay=-5\r\n",
         {},
         u"a"_s},
        {{0}, u"0="_s, title, {}, {}, {}, u""_s}, // emptied: the file goes to the trash
        {{0}, u"1=German (ger)"_s, title + "# note\r\nStretch=1\r\n", {}, title + german, {}, u"a"_s},
        {{0}, u"2=perhaps"_s, {}, {}, {}, {}, u""_s}, // only yes and no are taken for a flag
        {{0, 1}, u"1=German (ger)"_s, title, delay, title + german, german + delay, u"ab"_s},
        {{0, 1}, u"0=|4=7"_s, title, title, title + delay, title + delay, u"ab"_s}, // an empty set box keeps the old
                                                                                    // value
        {{0, 1}, u"0=One"_s, {}, delay, title, title + delay, u"ab"_s},
        {{0, 1}, {}, {}, delay, {}, delay, u"ab"_s}, // all grey: a name in the list and no file
    };
    for (const Claim& claim : claims) {
        Editor_Test test;
        QStringList listed;
        for (const auto& [name, content] : {std::pair(u"a"_s, claim.A), {u"b"_s, claim.B}}) {
            test.Write(u"videos/%1.mp3"_s.arg(name));
            if (!content.isNull())
                test.Write(u"videos/%1.mp3.opt"_s.arg(name), content);
            listed += name + u".mp3|"_s + (claim.Listed.contains(name) ? name + u".mp3.opt"_s : QString());
        }
        test.Edit([&] {
            test.Select(claim.Rows);
            for (const QString& typed : claim.Typed.split(u'|', Qt::SkipEmptyParts))
                test.Type(static_cast<Option_Slot>(typed.left(1).toInt()), typed.mid(2));
            btn_Apply_Click(test.Prog);
            EXPECT_EQ(test.Listed().first(2), listed);
        });
        EXPECT_EQ(test.Read(u"videos/a.mp3.opt"_s), claim.A_After) << claim.Typed.toStdString();
        EXPECT_EQ(test.Read(u"videos/b.mp3.opt"_s), claim.B_After) << claim.Typed.toStdString();
    }
}

TEST(OptionEditor, LeavingABoxGreysItWhereItHoldsNothingUsable)
{
    Editor_Test test;

    const std::tuple<Option_Slot, QString, bool> claims[] = {
        {Title_Slot, u"x"_s, true},    {Title_Slot, {}, false},       {Language_Slot, {}, true},
        {Default_Slot, u"No"_s, true}, {Default_Slot, u"-"_s, false}, {Forced_Slot, {}, false},
        {Delay_Slot, {}, false}};
    for (const auto& [slot, typed, set_after] : claims) {
        test.Type(slot, typed);
        EXPECT_TRUE(test.Editor().Boxes[slot].Set);
        Option_Box_Leave(test.Editor(), slot);
        EXPECT_EQ(test.Editor().Boxes[slot].Set, set_after) << slot << typed.toStdString();
    }
}

TEST(OptionEditor, StickyBoxesKeepTheirTextWhateverTheFilesSay)
{
    Editor_Test test;
    test.Write(u"videos/a.mp3"_s);
    test.Write(u"videos/a.mp3.opt"_s, "Title=One\r\nDelay=7\r\n");
    test.Prog.Settings.Audio_Sticky.Sticky_Titles = 1;
    test.Prog.Settings.Audio_Sticky.Title = u"Always"_s;
    test.Prog.Settings.Audio_Sticky.Delay = u"99"_s; // not sticky: gone when the form closes
    test.Edit([&] {
        EXPECT_EQ(test.Boxes(), u"[Always]////"_s);
        test.Select({0});
        EXPECT_EQ(test.Boxes(), u"[Always]////[7]"_s);
        test.Editor().Boxes[Forced_Slot].Sticky = true; // ticked, but with nothing in its box
        test.Editor().Boxes[Delay_Slot].Sticky = true;
    });
    const StickyValues& kept = test.Prog.Settings.Audio_Sticky;
    EXPECT_EQ(kept.Sticky_Titles, 1);
    EXPECT_EQ(kept.Title, u"Always"_s);
    EXPECT_EQ(kept.Sticky_Forced, 0);
    EXPECT_EQ(kept.Sticky_Delay, 1);
    EXPECT_EQ(kept.Delay, u"7"_s);
    EXPECT_EQ(test.Prog.Settings.Subtitle_Sticky.Title, QString());
}

// ---- The list's cells

namespace {

/// Four tracks, the second without an option file, the fourth one's media file gone.
struct Cells_Test : Editor_Test
{
    const QByteArray One = "# note\r\nTitle=One\r\nDefault=Yes\r\n";
    const QByteArray Three = "Title=Three\r\nDelay=70\r\n";
    const QByteArray Four = "Delay=9\r\n";

    Cells_Test()
    {
        for (const char16_t* name : {u"1.en.mp3", u"2.de.mp3", u"3.en.mp3"})
            Write(u"videos/"_s + QString::fromUtf16(name));
        Write(u"videos/1.en.mp3.opt"_s, One);
        Write(u"videos/3.en.mp3.opt"_s, Three);
        Write(u"videos/4.fr.mp3.opt"_s, Four);
    }

    void Type_Cell(int item, Option_Slot slot, const QString& text) { Type_Into_Cell(Editor(), item, slot, text); }

    /// One column of all rows as it is shown.
    QString Column(Option_Slot slot)
    {
        QStringList texts;
        for (const int item : Editor().Shown)
            texts += Cell_Caption(Editor(), item, slot);
        return texts.join(u'|');
    }

    QByteArrayList Option_Files() const
    {
        return {Read(u"videos/1.en.mp3.opt"_s), Read(u"videos/2.de.mp3.opt"_s), Read(u"videos/3.en.mp3.opt"_s),
                Read(u"videos/4.fr.mp3.opt"_s)};
    }
};

} // namespace

TEST(OptionCells, TakeWhatTheirBoxesTakeAndAreMarkedUntilTheFileSaysIt)
{
    Cells_Test test;
    test.Edit([&] {
        const std::tuple<int, Option_Slot, QString, QString> claims[] = {
            {0, Title_Slot, u"A\r\nB\u202E"_s, u"• A B\\u202E||Three|"_s},
            {0, Title_Slot, u"One"_s, u"One||Three|"_s},
            {0, Title_Slot, u""_s, u"• (emptied)||Three|"_s},
            {1, Language_Slot, u"German (ger)"_s, u"|• German (ger)||"_s},
            {0, Default_Slot, u"yes"_s, u"• yes|||"_s}, // a run wants small letters
            {2, Default_Slot, u"perhaps"_s, u"• yes|||"_s},
            {3, Delay_Slot, u"-9"_s, u"||70|• -9"_s},
        };
        for (const auto& [item, slot, typed, shown] : claims) {
            test.Type_Cell(item, slot, typed);
            EXPECT_EQ(test.Column(slot), shown);
        }
        EXPECT_EQ(test.Editor().lbl_Marks.Caption, u"3 files not applied yet");
        test.Select({2}); // another row is picked, and the folder listed by an apply of the boxes
        test.Type(Title_Slot, u"Drei"_s);
        btn_Apply_Click(test.Prog);
        EXPECT_EQ(test.Column(Title_Slot), u"• (emptied)||Drei|");
        EXPECT_EQ(Count_Marked(test.Editor()), 3U);
        test.Select({0, 3});
        Discard_Marks(test.Editor(), false);
        EXPECT_EQ(Count_Marked(test.Editor()), 1U);
    });
}

TEST(OptionCells, AreAppliedToAllMarkedRowsAndTakenBackStepByStep)
{
    Cells_Test test;
    const QByteArrayList before = test.Option_Files();
    test.Edit([&] {
        test.Type_Cell(0, Language_Slot, u"eng"_s);
        test.Type_Cell(1, Title_Slot, u"Two"_s);
        test.Type_Cell(3, Delay_Slot, {});
        Set_Option_Filter(test.Prog, u"*.en.mp3"_s); // hidden ones are applied, too
        EXPECT_EQ(test.Editor().lbl_Marks.Caption, u"3 files not applied yet, 2 of them hidden by the filter");
        test.Select({0, 2});
        test.Type(Title_Slot, u"typed"_s);
        EXPECT_TRUE(Apply_Marks(test.Prog));
        EXPECT_EQ(test.Boxes(), u"[typed]////") << "what stands in a box isn't lost";
        EXPECT_EQ(test.Editor().lbl_Marks.Caption, u"Applied to 3 files");
        Set_Option_Filter(test.Prog, {});
        const QByteArrayList applied = {
            "Title=One\r\nLanguage=eng\r\nDefault=Yes\r\n", "Title=Two\r\n", test.Three, {}};
        EXPECT_EQ(test.Option_Files(), applied);
        EXPECT_EQ(test.Listed(),
                  (QStringList{u"1.en.mp3|1.en.mp3.opt"_s, u"2.de.mp3|2.de.mp3.opt"_s, u"3.en.mp3|3.en.mp3.opt"_s}));

        test.Select({2});
        test.Type(Title_Slot, u"Third"_s);
        btn_Apply_Click(test.Prog);
        EXPECT_EQ(test.Option_Files()[2], "Title=Third\r\nDelay=70\r\n");
        Undo_Last_Apply(test.Prog);
        EXPECT_EQ(test.Option_Files(), applied);
        const qsizetype trashed = Names_In_Trash().size();
        Undo_Last_Apply(test.Prog);
        EXPECT_EQ(test.Option_Files(), before) << "comments come back as well";
        EXPECT_EQ(Names_In_Trash().size(), trashed + 1) << "the file that wasn't there";
        EXPECT_EQ(test.Editor().lbl_Marks.Caption, u"Taken back: 3 files");
        Undo_Last_Apply(test.Prog); // nothing is left to take back
        EXPECT_TRUE(test.Person.Messages.empty());
    });
}

TEST(OptionCells, WhatCantBeWrittenOrTakenBackStaysAndIsToldOnce)
{
    Cells_Test test;
    test.Write(u"videos/4.fr.mp3.opt"_s, "title\r\n"); // stops the reader
    QDir().mkdir(test.Path(u"videos/2.de.mp3.opt"_s));
    test.Edit([&] {
        EXPECT_EQ(test.Column(Title_Slot), u"One||Three|(can't be read)");
        for (int item = 0; item < 4; ++item)
            test.Type_Cell(item, Title_Slot, u"x"_s);
        EXPECT_EQ(Count_Marked(test.Editor()), 3U);
        EXPECT_FALSE(Apply_Marks(test.Prog));
        EXPECT_EQ(test.Column(Title_Slot), u"x|• x|x|(can't be read)");
        ASSERT_EQ(test.Person.Messages.size(), 1U);
        EXPECT_TRUE(test.Person.Messages[0].Text.contains(test.Path(u"videos/2.de.mp3.opt"_s)));

        test.Write(u"videos/3.en.mp3.opt"_s, "Title=somebody's\r\n");
        Undo_Last_Apply(test.Prog);
        EXPECT_EQ(test.Column(Title_Slot), u"One|• x|somebody's|(can't be read)");
        ASSERT_EQ(test.Person.Messages.size(), 2U);
        EXPECT_TRUE(test.Person.Messages[1].Text.endsWith(u"3.en.mp3.opt"_s));
        test.Select({3}); // it would end the program, and the marks with it
        EXPECT_TRUE(test.Editor().Selection.empty());
        EXPECT_TRUE(test.Person.Messages[2].Text.contains(u"4.fr.mp3.opt"_s));
        Discard_Marks(test.Editor(), true);
    });
}

TEST(OptionCells, LeavingWithMarksAsksAndStayingKeepsThem)
{
    for (const auto& [answer, leaves, title, marked] : {std::tuple(Message_Answer::Ok, true, "Title=x\r\n", 0U),
                                                        {Message_Answer::Discard, true, "", 0U},
                                                        {Message_Answer::Cancel, false, "", 1U}}) {
        Cells_Test test;
        test.Person.Answer = answer;
        test.Edit([&, answer = answer, leaves = leaves, title = title, marked = marked] {
            EXPECT_TRUE(May_Leave_Marks(test.Prog));
            EXPECT_TRUE(test.Person.Messages.empty());
            test.Type_Cell(1, Title_Slot, u"x"_s);
            EXPECT_EQ(May_Leave_Marks(test.Prog), leaves);
            EXPECT_EQ(test.Person.Messages.size(), 1U);
            EXPECT_EQ(test.Option_Files()[1], title);
            EXPECT_EQ(Count_Marked(test.Editor()), marked) << int(answer);
            test.Prog.Form.Asked_To_Go = true;
            EXPECT_TRUE(May_Leave_Marks(test.Prog));
        });
    }
}

TEST(OptionCells, AreFilteredSortedAndFilled)
{
    Cells_Test test;
    test.Edit([&] {
        Option_Editor& editor = test.Editor();
        const std::pair<QString, std::vector<int>> filters[] = {
            {u"*.en.mp3"_s, {0, 2}},   {u"EN"_s, {0, 2}}, {u"?.fr.mp3;2*"_s, {1, 3}},
            {u"mp3.opt"_s, {0, 2, 3}}, {u"[*"_s, {}},     {u" "_s, {0, 1, 2, 3}}};
        for (const auto& [filter, shown] : filters) {
            Set_Option_Filter(test.Prog, filter);
            EXPECT_EQ(editor.Shown, shown) << filter.toStdString();
        }
        const std::tuple<int, bool, std::vector<int>> orders[] = {
            {File_Column, true, {3, 2, 1, 0}},
            {Option_File_Column, false, {0, 2, 3, 1}},
            {First_Value_Column, false, {0, 2, 1, 3}},
            {First_Value_Column + int(Delay_Slot), false, {3, 2, 0, 1}}};
        for (const auto& [column, descending, shown] : orders) {
            Sort_Option_List(editor, column, descending);
            EXPECT_EQ(editor.Shown, shown) << column;
        }
        test.Select({0, 2, 3}); // shown as 3 2 0 1
        EXPECT_EQ(Fill_Down(editor, 2, Delay_Slot), 1);
        EXPECT_EQ(test.Column(Delay_Slot), u"9|70|• 70|");
        EXPECT_EQ(Fill_Down(editor, 0, Delay_Slot), 2) << "from the topmost where the last one is current";
        EXPECT_EQ(test.Column(Delay_Slot), u"9|• 9|• 9|");
        Set_Option_Filter(test.Prog, u"fr"_s);
        EXPECT_EQ(editor.Selection, std::vector<int>{3}) << "no command of the boxes reaches a hidden row";
        EXPECT_EQ(Fill_Down(editor, 3, Delay_Slot), 0);
    });
}
