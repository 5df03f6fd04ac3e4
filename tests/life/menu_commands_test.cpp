#include "life/menu_commands.h"

#include "common/test_program.h"
#include "life/popups.h"
#include "rules/language_filter.h"
#include "rules/option_rules.h"
#include "rules/verbosity.h"
#include "settings/verbosity_levels.h"

#include <QFile>
#include <gtest/gtest.h>
#include <set>

using namespace Qt::StringLiterals;

struct MenuCommands : testing::Test, Test_Program
{};

TEST_F(MenuCommands, TicksFlipTheOptionBehindThemBeforeTheFirstActivationToo)
{
    for (const Menu_Tick& tick : Menu_Ticks()) {
        const bool before = tick.Ticked(Prog);
        tick.Command(Prog);
        EXPECT_EQ(tick.Ticked(Prog), !before) << tick.Name.toStdString();
        EXPECT_EQ(Prog.Form.Focus, u"btn_NOP"_s);
    }
    EXPECT_TRUE(Prog.Options.Keep_English_Audio);
    EXPECT_TRUE(Prog.Options.Keep_English_Subs);
    EXPECT_TRUE(Prog.Options.Delete_Sundry_Files);
    EXPECT_TRUE(Prog.Options.mnu_AppendLogs);
    EXPECT_TRUE(Prog.Form.Topmost_On);
    EXPECT_TRUE(Person.Topmost);
    mnu_KeepTopmost_Click(Prog);
    EXPECT_FALSE(Person.Topmost);
}

TEST_F(MenuCommands, WhatBecomesOfAnOutputThatExistsIsOneOfThree)
{
    for (const Menu_Tick& item : Menu_Choices()) {
        for (int times = 0; times < 2; ++times)
            item.Command(Prog);
        for (const Menu_Tick& other : Menu_Choices())
            EXPECT_EQ(other.Ticked(Prog), other.Name == item.Name);
    }
}

TEST_F(MenuCommands, AFormAboveAllOthersComesDownWhileADialogIsOpen)
{
    const std::vector<std::pair<void (*)(Program&), QString>> dialogs = {
        {mnu_CustomAudioFilter_Click, u"frm_CustomFilter"_s},
        {mnu_CustomSubtitleFilter_Click, u"frm_CustomFilter"_s},
        {mnu_CustomFileTitle_Click, u"frm_CustomTitle"_s},
        {mnu_CustomVideoTitle_Click, u"frm_CustomTitle"_s},
        {mnu_VideoFrameRate_Click, u"frm_VideoFrameRate"_s},
        {mnu_VideoFormatOptions_Click, u"frm_VideoFormatOptions"_s},
        {mnu_Attachments_Click, u"frm_Attachments"_s},
        {mnu_PopupACA1_Click, u"frm_Attachments"_s},
        {mnu_AudioOptionsFile_Click, u"frm_OptionsFiles"_s},
        {mnu_SubtitleOptionsFile_Click, u"frm_OptionsFiles"_s},
        {mnu_ViewLog_Click, u"frm_ProcessLog"_s},
        {mnu_ExecutablePaths_Click, u"frm_Locations"_s},
        {btn_ViewVidInfo_Click, u"frm_ViewVFI"_s},
    };
    for (const bool topmost : {false, true}) {
        Prog.Form.Topmost_On = topmost;
        for (const auto& [command, form] : dialogs) {
            bool topmost_inside = true;
            Person.Topmost = topmost;
            Person.Forms.clear();
            Person.On_Form[form] = [&] { topmost_inside = Person.Topmost; };
            command(Prog);
            EXPECT_EQ(Person.Forms, QStringList{form});
            EXPECT_FALSE(topmost_inside) << form.toStdString();
            EXPECT_EQ(Person.Topmost, topmost) << form.toStdString();
        }
    }
}

TEST_F(MenuCommands, TheAttachmentsFormWaitsForItsPopupToClose)
{
    mnu_PopupACA1_Click(Prog);
    EXPECT_EQ(Person.Waited_Milliseconds, 10);
    Person.Forms.clear();
    chk_AddAttachments_Right_Click(Prog);
    EXPECT_TRUE(Person.Forms.isEmpty());
    Prog.Form.Options_Ready = true;
    chk_AddAttachments_Right_Click(Prog);
    EXPECT_EQ(Person.Forms, QStringList{u"frm_Attachments"_s});
}

TEST_F(MenuCommands, ClearingTheLogMovesItOutOfItsPlace)
{
    Write(u"app/Vantorra_Process.log"_s, "old");
    mnu_ClearLog_Click(Prog);
    EXPECT_FALSE(QFile::exists(Path(u"app/Vantorra_Process.log"_s)));
    EXPECT_EQ(Read(u"app/Vantorra_ProcessA.log"_s), "old");
}

TEST_F(MenuCommands, TurningTheRunButtonsExtensionOnTestsTheButtonAtOnce)
{
    Prog.Options.Path_Target.clear();
    mnu_RunButtonFollowsFolders_Click(Prog);
    EXPECT_TRUE(Prog.Form.btn_RunVantorra.Enabled);
    mnu_RunButtonFollowsFolders_Click(Prog);
    EXPECT_FALSE(Prog.Form.btn_RunVantorra.Enabled);
}

TEST_F(MenuCommands, VerbosityHasOneWordingWhenChosenAndAnotherWhenLoaded)
{
    struct Claim
    {
        QString Item, Chosen, Loaded;
    };

    const Claim claims[] = {
        {u"0 - Log Process Overview Only"_s, u"0 - Log Process Overview only"_s, u"0 - Log Process Overview Only"_s},
        {u"1 - Include Faults and Fails"_s, u"1 - Include Faults and Fails"_s, u"1 - Include Faults and Fails"_s},
        {u"2 - Include Added Files"_s, u"2 - Include Added Files"_s, u"2 - Include Added Files"_s},
        {u"3 - Include Active Checkboxes"_s, u"3 - Include Active Checkboxes"_s,
         u"3 - Include All Active Checkboxes"_s},
        {u"4 - Include Menu Settings"_s, u"4 - Include Menu Settings"_s, u"4 - Include All Menu Settings"_s},
        {u"5 - Include MKVMerge Reports"_s, u"5 - Include MKVMerge Reports"_s, u"5 - Include MKVMerge Reports"_s},
        {u"6 - Include ALL MKVMerge Results"_s, u"6 - Include ALL MKVMerge Reports"_s,
         u"6 - Include ALL MKVMerge Reports"_s},
        {u"7 - Include MKVMerge Command Line"_s, u"7 - Include MKVMerge Command Line."_s,
         u"7 - Include MKVMerge Command Line"_s},
    };
    for (int level = 0; level < 8; ++level) {
        const Claim& claim = claims[level];
        const QString menu = u"&Process_Log v"_s + QString::number(level);
        EXPECT_EQ(Verbosity_Levels()[static_cast<std::size_t>(level)].Item_Caption, claim.Item);
        Choose_Verbosity(Prog, level);
        EXPECT_EQ(Prog.Options.Log_Verbosity, level);
        EXPECT_EQ(Prog.Form.mnu_VerbosityStatus.Caption, u"Log Verbosity "_s + claim.Chosen);
        EXPECT_EQ(Prog.Form.mnu_Process_Log.Caption, menu);
        Load_Verbosity(Prog.Options, Prog.Form, level);
        EXPECT_EQ(Prog.Options.Log_Verbosity, level);
        EXPECT_EQ(Prog.Form.mnu_VerbosityStatus.Caption, u"Log Verbosity "_s + claim.Loaded);
        EXPECT_EQ(Prog.Form.mnu_Process_Log.Caption, menu);
    }
    Load_Verbosity(Prog.Options, Prog.Form, 8);
    EXPECT_EQ(Prog.Options.Log_Verbosity, 0);
}

TEST_F(MenuCommands, AFilterWithoutALanguageGoesOffAndFreesEnglishOnly)
{
    Load_Language_Table(Prog.Language_Table, u"scrap"_s);

    struct Kind
    {
        void (*Command)(Program&);
        FilterSettings JobOptions::*Filter;
        Check_Box JobOptions::*Custom;
        Check_Box JobOptions::*English;
        std::int16_t JobOptions::*Mode;
        std::int16_t Number;
        QString Caption;
    };

    for (const Kind& kind :
         {Kind{mnu_CustomAudioFilter_Click, &JobOptions::AudioFilter, &JobOptions::chk_CustomAudioFilter,
               &JobOptions::chk_EngAudioOnly, &JobOptions::AudioFilterMode, 1, u"Apply custom Audio Filter"_s},
          Kind{mnu_CustomSubtitleFilter_Click, &JobOptions::SubsFilter, &JobOptions::chk_CustomSubsFilter,
               &JobOptions::chk_EngSubsOnly, &JobOptions::SubsFilterMode, 2, u"Apply custom Subtitle Filter"_s}}) {
        FilterSettings& filter = Prog.Options.*kind.Filter;
        Check_Box& custom = Prog.Options.*kind.Custom;
        Check_Box& english = Prog.Options.*kind.English;
        custom.Enabled = false;
        Person.On_Form[u"frm_CustomFilter"_s] = [&] {
            EXPECT_EQ(Prog.Settings.WorkingFilter.Kind, kind.Number);
            lst_LanguageList_Click(Prog, 0);
            opt_CustomFilter_Click(Prog, 1);
            btn_CustomFilter_Done_Click(Prog);
        };
        kind.Command(Prog);
        EXPECT_EQ(filter.Languages, u"Abkhazian (abk)"_s);
        EXPECT_EQ(filter.Count, 1);
        EXPECT_TRUE(custom.Enabled);
        EXPECT_EQ(custom.Caption, kind.Caption + u" (keep)"_s);

        custom.Value = 1;
        english.Enabled = false;
        Person.On_Form[u"frm_CustomFilter"_s] = [&] { btn_CustomFilter_Cancel_Click(Prog); };
        kind.Command(Prog);
        EXPECT_EQ(Prog.Options.*kind.Mode, 4);
        EXPECT_FALSE(english.Enabled);

        Person.On_Form[u"frm_CustomFilter"_s] = [&] {
            btn_CustomClear_Click(Prog);
            opt_CustomFilter_Click(Prog, 0);
            btn_CustomFilter_Done_Click(Prog);
        };
        kind.Command(Prog);
        EXPECT_EQ(custom.Caption, kind.Caption + u" (cut)"_s);
        EXPECT_EQ(custom.Value, 0);
        EXPECT_FALSE(custom.Enabled);
        EXPECT_TRUE(english.Enabled);
        EXPECT_EQ(Prog.Options.*kind.Mode, 0); // not 3 or 4, which would drop every track
    }
}

TEST_F(MenuCommands, PopupsHaveOneItemAndEveryControlAtMostOnePopup)
{
    std::set<QString> names;
    std::size_t controls = 0;
    for (const Popup& popup : Popups()) {
        EXPECT_EQ(popup.Item, popup.Menu + u"1"_s);
        EXPECT_NE(popup.Command, nullptr);
        controls += static_cast<std::size_t>(popup.Controls.size());
        for (const QString& control : popup.Controls) {
            names.insert(control);
            EXPECT_EQ(Find_Popup(control), &popup);
        }
    }
    EXPECT_EQ(names.size(), controls);
    EXPECT_EQ(Popups().size(), 15U);
    EXPECT_EQ(Find_Popup(u"chk_CustomVideoTitle"_s)->Caption, u"Custom Video Title"_s);
    EXPECT_EQ(Find_Popup(u"chk_AddAttachments"_s), nullptr);
}
