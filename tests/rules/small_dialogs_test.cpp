#include "common/test_program.h"
#include "life/menu_commands.h"
#include "rules/custom_title.h"
#include "rules/frame_rate_dialog.h"
#include "rules/video_format_dialog.h"

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
    for (const bool is_file : {true, false}) {
        JobOptions& o = Prog.Options;
        const QString caption = is_file ? u"Set Custom File Title"_s : u"Set Custom Video Title"_s;
        const QString& title = is_file ? o.Custom_File_Title : o.Custom_Video_Title;
        Check_Box& box = is_file ? o.chk_CustomFileTitle : o.chk_CustomVideoTitle;
        Check_Box& set_title = is_file ? o.chk_SetFileTitle : o.chk_SetVideoTitle;
        const Option_Pair& choice = is_file ? o.opt_SetFileTitle : o.opt_SetVideoTitle;
        Custom_Title_Form& form = Prog.Custom_Title;
        const auto act = [&](const std::function<void()>& action) {
            Person.On_Form[u"frm_CustomTitle"_s] = [&, action] {
                EXPECT_EQ(form.Title_Form_Caption, caption);
                EXPECT_EQ(form.Focus, u"txt_CustomTitle"_s);
                action();
            };
            is_file ? mnu_CustomFileTitle_Click(Prog) : mnu_CustomVideoTitle_Click(Prog);
        };
        act([&] {
            form.txt_CustomTitle.Text = u"A\r\n\"title\""_s;
            btn_CustomTitle_Done_Click(form);
        });
        act([&] { form.txt_CustomTitle.Text = u"closed by other means"_s; });
        EXPECT_EQ(title, u"A \"title\""_s);
        box.Value = 1;
        set_title.Value = 1;
        act([&] {
            btn_CustomTitle_Clear_Click(form);
            btn_CustomTitle_Done_Click(form);
        });
        EXPECT_EQ(title, u""_s);
        EXPECT_EQ(box.Caption, caption + u" (empty)"_s);
        EXPECT_EQ(box.Value, 0);
        EXPECT_TRUE(set_title.Enabled && choice.Enabled);
    }
}

TEST_F(SmallDialogs, TheVideoFormatIsUsableWithARatioOrWithTwoWholeNumbers)
{
    struct Claim
    {
        QString Ratio, Width, Height; ///< a ratio is chosen where there is one
        int Kind;
        QString Value;
    };

    const Claim claims[] = {
        {u"16/9"_s, u""_s, u""_s, 1, u"16/9"_s}, {u"2.35"_s, u"1"_s, u"2"_s, 1, u"2.35"_s},
        {u"NONE"_s, u""_s, u""_s, 0, u""_s},     {u""_s, u"720"_s, u"576"_s, 2, u"720x576"_s},
        {u""_s, u"720"_s, u""_s, 2, u""_s},      {u""_s, u"720.5"_s, u"576"_s, 2, u""_s},
    };
    for (const Claim& claim : claims) {
        const bool usable = !claim.Value.isEmpty();
        const bool by_ratio = !claim.Ratio.isEmpty();
        Prog.Options.Video_Format_Value = u"4/3"_s;
        Prog.Options.Video_Format_Kind = 1;
        Prog.Options.chk_VideoFormatOptions.Value = 1;
        Prog.Options.chk_VideoFormatOptions.Enabled = !usable;
        In_Video_Format([&](Video_Format_Form& form) {
            opt_AspectRatio_Click(Prog, by_ratio ? 1 : 2);
            EXPECT_EQ(form.cbo_AspectRatio.Enabled, by_ratio);
            EXPECT_EQ(form.pic_WidthHeight.Enabled, !by_ratio);
            form.cbo_AspectRatio.Text = by_ratio ? claim.Ratio : u"16/9"_s;
            form.txt_Width.Text = claim.Width;
            form.txt_Height.Text = claim.Height;
            btn_VideoFormat_Done_Click(Prog);
        });
        EXPECT_EQ(Prog.Options.Video_Format_Kind, claim.Kind);
        EXPECT_EQ(Prog.Options.Video_Format_Value, claim.Value);
        EXPECT_EQ(Prog.Options.chk_VideoFormatOptions.Enabled, usable);
        EXPECT_EQ(Prog.Options.chk_VideoFormatOptions.Value, 1);
    }
}
