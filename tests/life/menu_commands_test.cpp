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

TEST_F(MenuCommands, WhatBecomesOfAnOutputThatExistsIsOneOfThree)
{
    for (const Menu_Tick& item : Menu_Choices()) {
        for (int times = 0; times < 2; ++times)
            item.Command(Prog);
        for (const Menu_Tick& other : Menu_Choices())
            EXPECT_EQ(other.Ticked(Prog), other.Name == item.Name);
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
    Choose_Verbosity(Prog, 3);
    EXPECT_EQ(Prog.Options.Log_Verbosity, 3);
    EXPECT_EQ(Prog.Form.mnu_VerbosityStatus.Caption, u"Log Verbosity 3 - Include Active Checkboxes"_s);
    EXPECT_EQ(Prog.Form.mnu_Process_Log.Caption, u"&Process_Log v3"_s);
    Load_Verbosity(Prog.Options, Prog.Form, 3);
    EXPECT_EQ(Prog.Form.mnu_VerbosityStatus.Caption, u"Log Verbosity 3 - Include All Active Checkboxes"_s);
    Load_Verbosity(Prog.Options, Prog.Form, 8);
    EXPECT_EQ(Prog.Options.Log_Verbosity, 0);
}
