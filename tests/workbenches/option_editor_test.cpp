#include "workbenches/option_editor.h"

#include "common/test_program.h"

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
