#include "life/menu_commands.h"

#include "common/test_program.h"
#include "life/popups.h"
#include "settings/verbosity_levels.h"

struct MenuCommands : testing::Test, Test_Program
{};

TEST_F(MenuCommands, OfTheChoicesOfAMenuOneHasTheTick)
{
    for (const Menu_Tick& item : Menu_Choices()) {
        for (int times = 0; times < 2; ++times)
            item.Command(Prog);
        for (const Menu_Tick& other : Menu_Choices())
            EXPECT_TRUE(other.Name.first(8) != item.Name.first(8) || other.Ticked(Prog) == (other.Name == item.Name));
    }
}

TEST_F(MenuCommands, TurningTheRunButtonsExtensionOnTestsTheButtonAtOnce)
{
    Prog.Options.Path_Target.clear();
    mnu_RunButtonFollowsFolders_Click(Prog);
    EXPECT_TRUE(Prog.Form.btn_RunVantorra.Enabled);
    mnu_RunButtonFollowsFolders_Click(Prog);
    EXPECT_FALSE(Prog.Form.btn_RunVantorra.Enabled);
}

TEST_F(MenuCommands, AVerbosityThatThereIsNotReadsAsNone)
{
    Load_Verbosity(Prog.Options, Prog.Form, 8);
    EXPECT_EQ(Prog.Options.Log_Verbosity, 0);
}

TEST_F(MenuCommands, TheAttachmentsFormWaitsForItsPopupToClose)
{
    mnu_PopupACA1_Click(Prog);
    EXPECT_EQ(Person.Waited_Milliseconds, 10);
}
