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

    void In_Frame_Rate(const std::function<void(Frame_Rate_Form&)>& action)
    {
        Person.On_Form[u"frm_VideoFrameRate"_s] = [this, action] {
            EXPECT_TRUE(Prog.Frame_Rate_Dialog.Visible);
            action(Prog.Frame_Rate_Dialog);
            EXPECT_FALSE(Prog.Frame_Rate_Dialog.Visible);
        };
        mnu_VideoFrameRate_Click(Prog);
    }

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

TEST_F(SmallDialogs, TheFrameRateIsUsableWithARateOrWithTheOneFound)
{
    struct Claim
    {
        int Item;
        QString Text;
        int Kind;
        QString Value; ///< from "old"
        bool Usable;
    };

    for (const Claim& claim : {Claim{1, u"25p"_s, 1, u"old"_s, true},
                               {2, u"25p"_s, 2, u"25p"_s, true},
                               {2, u"NONE"_s, 0, u""_s, false},
                               {2, u""_s, 0, u""_s, false}}) {
        Prog.Options.Frame_Rate_Value = u"old"_s;
        Prog.Options.chk_VideoFrameRate.Value = 1;
        Prog.Options.chk_VideoFrameRate.Enabled = !claim.Usable;
        In_Frame_Rate([&](Frame_Rate_Form& form) {
            opt_FrameRate_Click(form, claim.Item);
            EXPECT_EQ(form.cbo_FrameRate.Enabled, claim.Item == 2);
            form.cbo_FrameRate.Text = claim.Text;
            btn_FrameRate_Done_Click(Prog);
        });
        EXPECT_EQ(Prog.Options.Frame_Rate_Kind, claim.Kind);
        EXPECT_EQ(Prog.Options.Frame_Rate_Value, claim.Value);
        EXPECT_EQ(Prog.Options.chk_VideoFrameRate.Enabled, claim.Usable);
        EXPECT_EQ(Prog.Options.chk_VideoFrameRate.Value, claim.Usable ? 1 : 0);
    }
}

TEST_F(SmallDialogs, TheFrameRateFormOpensWithWhatIsSetAndCancelChangesNothing)
{
    for (const int kind : {0, 1, 2}) {
        Prog.Options.Frame_Rate_Kind = static_cast<std::int16_t>(kind);
        Prog.Options.Frame_Rate_Value = u"50i"_s;
        Prog.Settings.Frame_Rate_Usable = kind != 0;
        In_Frame_Rate([&](Frame_Rate_Form& form) {
            EXPECT_EQ(form.opt_FrameRate.Selected, kind == 1 ? 1 : 2);
            EXPECT_EQ(form.cbo_FrameRate.Enabled, kind != 1);
            EXPECT_EQ(form.cbo_FrameRate.Text, u"50i"_s);
            form.cbo_FrameRate.Text = u"NONE"_s;
            opt_FrameRate_Click(form, 2);
            btn_FrameRate_Cancel_Click(form);
        });
        EXPECT_EQ(Prog.Options.Frame_Rate_Kind, kind);
        EXPECT_EQ(Prog.Options.Frame_Rate_Value, u"50i"_s);
        EXPECT_EQ(Prog.Options.chk_VideoFrameRate.Enabled, kind != 0);
    }
    EXPECT_EQ(Frame_Rate_List().join(u' '), u"NONE 23.976fps 24p 25p 29.970fps 30p 50i 50p 60i 60p 24000/1001p "
                                            "30000/1001p 60000/1001i 60000/1001p"_s);
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

TEST_F(SmallDialogs, TheVideoFormatFormOpensWithWhatIsSetAndGivesItBackUnlessDone)
{
    struct Claim
    {
        std::int16_t Kind;
        QString Value;
        int Item;
        QString Ratio, Width, Height; ///< from "r", "w", "h"
    };

    const Claim claims[] = {
        {0, u""_s, 1, u"r"_s, u"w"_s, u"h"_s},
        {1, u"1.85"_s, 1, u"1.85"_s, u"w"_s, u"h"_s},
        {2, u"720x576"_s, 2, u"r"_s, u"720"_s, u"576"_s},
        {1, u"720x"_s, 2, u"r"_s, u"720"_s, u""_s},
        {0, u"1.85"_s, 1, u"r"_s, u"w"_s, u"h"_s},
        {2, u"1.85"_s, 2, u"r"_s, u"1.85"_s, u""_s},
    };
    for (const bool cancel : {true, false})
        for (const Claim& claim : claims) {
            Prog.Options.Video_Format_Kind = claim.Kind;
            Prog.Options.Video_Format_Value = claim.Value;
            Prog.Settings.Video_Format_Usable = !claim.Value.isEmpty();
            Prog.Video_Format_Dialog.cbo_AspectRatio.Text = u"r"_s;
            Prog.Video_Format_Dialog.txt_Width.Text = u"w"_s;
            Prog.Video_Format_Dialog.txt_Height.Text = u"h"_s;
            In_Video_Format([&](Video_Format_Form& form) {
                EXPECT_EQ(form.opt_AspectRatio.Selected, claim.Item) << claim.Value.toStdString();
                EXPECT_EQ(form.cbo_AspectRatio.Text, claim.Ratio);
                EXPECT_EQ(form.txt_Width.Text, claim.Width);
                EXPECT_EQ(form.txt_Height.Text, claim.Height);
                opt_AspectRatio_Click(Prog, 3 - claim.Item);
                if (cancel)
                    btn_VideoFormat_Cancel_Click(Prog);
            });
            EXPECT_EQ(Prog.Options.Video_Format_Kind, claim.Kind);
            EXPECT_EQ(Prog.Options.Video_Format_Value, claim.Value);
            EXPECT_EQ(Prog.Options.chk_VideoFormatOptions.Enabled, !claim.Value.isEmpty());
        }
    EXPECT_EQ(Aspect_Ratio_List().join(u' '), u"NONE 4/3 1.66 16/9 1.85 2.00 2.21 2.35 2.40"_s);
}

TEST_F(SmallDialogs, OnlyKeysOfARatioOrASizeCanBeTyped)
{
    for (const QChar key : u"0123456789./\b x-,:\r"_s) {
        const bool size = key.isDigit() || key == u'.' || key == u'\b';
        EXPECT_EQ(Size_Key_Allowed(key), size) << static_cast<int>(key.unicode());
        EXPECT_EQ(Aspect_Key_Allowed(key), size || key == u'/') << static_cast<int>(key.unicode());
    }
}
