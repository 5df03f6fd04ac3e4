#include "common/test_program.h"
#include "life/menu_commands.h"
#include "rules/custom_title.h"
#include "rules/frame_rate_dialog.h"
#include "rules/video_format_dialog.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// The dialogs as a person uses them: each test opens one by its menu and acts in it.
struct SmallDialogs : testing::Test, Test_Program
{
    SmallDialogs() { Prog.Form.Options_Ready = true; }

    void In_Video_Format(const std::function<void(Video_Format_Form&)>& action)
    {
        Person.On_Form[u"frm_VideoFormatOptions"_s] = [this, action] { action(Prog.Video_Format_Dialog); };
        mnu_VideoFormatOptions_Click(Prog);
        EXPECT_FALSE(Prog.Video_Format_Dialog.Visible);
    }
};

TEST_F(SmallDialogs, TheCustomTitleIsTakenOnDoneOnly)
{
    struct Kind
    {
        void (*Command)(Program&);
        QString JobOptions::*Title;
        Check_Box JobOptions::*Custom;
        Check_Box JobOptions::*Set;
        Option_Pair JobOptions::*Choice;
        QString Caption;
    };

    for (const Kind& kind :
         {Kind{mnu_CustomFileTitle_Click, &JobOptions::Custom_File_Title, &JobOptions::chk_CustomFileTitle,
               &JobOptions::chk_SetFileTitle, &JobOptions::opt_SetFileTitle, u"Set Custom File Title"_s},
          Kind{mnu_CustomVideoTitle_Click, &JobOptions::Custom_Video_Title, &JobOptions::chk_CustomVideoTitle,
               &JobOptions::chk_SetVideoTitle, &JobOptions::opt_SetVideoTitle, u"Set Custom Video Title"_s}}) {
        QString& title = Prog.Options.*kind.Title;
        Check_Box& box = Prog.Options.*kind.Custom;
        Custom_Title_Form& form = Prog.Custom_Title;
        const auto act = [&](const std::function<void()>& action) {
            Person.On_Form[u"frm_CustomTitle"_s] = [&form, &kind, action] {
                EXPECT_EQ(form.Title_Form_Caption, kind.Caption);
                EXPECT_EQ(form.Focus, u"txt_CustomTitle"_s);
                action();
            };
            kind.Command(Prog);
        };
        act([&] {
            form.txt_CustomTitle.Text = u"A\r\n\"title\""_s;
            btn_CustomTitle_Done_Click(form);
        });
        EXPECT_EQ(title, u"A \"title\""_s);
        EXPECT_EQ(box.Caption, kind.Caption + u" (NOT empty)"_s);

        box.Value = 1;
        act([&] {
            EXPECT_EQ(form.txt_CustomTitle.Text, u"A \"title\""_s);
            btn_CustomTitle_Clear_Click(form);
            btn_CustomTitle_Cancel_Click(form);
        });
        act([&] { form.txt_CustomTitle.Text = u"closed by other means"_s; });
        EXPECT_EQ(title, u"A \"title\""_s);
        EXPECT_FALSE((Prog.Options.*kind.Set).Enabled);
        EXPECT_FALSE((Prog.Options.*kind.Choice).Enabled);

        (Prog.Options.*kind.Set).Value = 1;
        act([&] {
            btn_CustomTitle_Clear_Click(form);
            btn_CustomTitle_Done_Click(form);
        });
        EXPECT_EQ(title, u""_s);
        EXPECT_EQ(box.Caption, kind.Caption + u" (empty)"_s);
        EXPECT_EQ(box.Value, 0);
        EXPECT_TRUE((Prog.Options.*kind.Set).Enabled);
        EXPECT_TRUE((Prog.Options.*kind.Choice).Enabled);
    }
}

TEST_F(SmallDialogs, TheVideoFormatIsUsableWithARatioOrWithTwoWholeNumbers)
{
    struct Claim
    {
        int Item;
        QString Ratio, Width, Height;
        int Kind;
        QString Value;
        bool Usable;
    };

    const Claim claims[] = {
        {1, u"16/9"_s, u""_s, u""_s, 1, u"16/9"_s, true}, {1, u"2.35"_s, u"1"_s, u"2"_s, 1, u"2.35"_s, true},
        {1, u"NONE"_s, u""_s, u""_s, 0, u""_s, false},    {2, u"16/9"_s, u"720"_s, u"576"_s, 2, u"720x576"_s, true},
        {2, u""_s, u"720"_s, u""_s, 2, u""_s, false},     {2, u""_s, u"720.5"_s, u"576"_s, 2, u""_s, false},
    };
    for (const Claim& claim : claims) {
        Prog.Options.Video_Format_Value = u"4/3"_s;
        Prog.Options.Video_Format_Kind = 1;
        Prog.Options.chk_VideoFormatOptions.Value = 1;
        Prog.Options.chk_VideoFormatOptions.Enabled = !claim.Usable;
        In_Video_Format([&](Video_Format_Form& form) {
            opt_AspectRatio_Click(Prog, claim.Item);
            EXPECT_EQ(form.cbo_AspectRatio.Enabled, claim.Item == 1);
            EXPECT_EQ(form.pic_WidthHeight.Enabled, claim.Item == 2);
            form.cbo_AspectRatio.Text = claim.Ratio;
            form.txt_Width.Text = claim.Width;
            form.txt_Height.Text = claim.Height;
            btn_VideoFormat_Done_Click(Prog);
        });
        EXPECT_EQ(Prog.Options.Video_Format_Kind, claim.Kind);
        EXPECT_EQ(Prog.Options.Video_Format_Value, claim.Value);
        EXPECT_EQ(Prog.Options.chk_VideoFormatOptions.Enabled, claim.Usable);
        EXPECT_EQ(Prog.Options.chk_VideoFormatOptions.Value, 1);
    }
}
