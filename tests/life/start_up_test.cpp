#include "life/start_up.h"

#include "common/test_program.h"
#include "life/app_folder.h"
#include "life/help_and_about.h"
#include "life/instance_lock.h"
#include "settings/settings_store.h"
#include "support/paths.h"

#include <QDir>
#include <QFile>

TEST(AppFolder, TheFirstPlaceThatIsGivenCounts)
{
    const Test_Program test;
    test.Write(u"portable/Vantorra.ini"_s);
    const QString portable = test.Path(u"portable"_s);
    // Where programs have folders of their own, one that may be written will do without a settings file.
    const QString plain = test.Path(Path_Separator == u'/' ? u"app"_s : u"gone"_s);

    struct Claim
    {
        App_Folder_Places Places;
        QString Folder;
    };

    const Claim claims[] = {
        {{Native(u"/asked"_s), Native(u"/env"_s), portable, u"/data"_s}, Native(u"/asked/"_s)},
        {{Native(u"/asked/./a//"_s), {}, {}, u"/data"_s}, Native(u"/asked/a/"_s)},
        {{u"here"_s, {}, {}, u"/data"_s}, Native(QDir::currentPath() + u"/here/"_s)},
        {{{}, Native(u"/env"_s), portable, u"/data"_s}, Native(u"/env/"_s)},
        {{{}, {}, portable, u"/data"_s}, With_Separator(portable)},
        {{{}, {}, plain, Native(u"/data/vantorra"_s)}, Native(u"/data/vantorra/"_s)},
    };
    for (const Claim& claim : claims)
        EXPECT_EQ(Choose_App_Folder(claim.Places), claim.Folder);
}

TEST(InstanceLock, OneWindowAFolder)
{
    const Test_Program test;
    {
        Instance_Lock first;
        EXPECT_TRUE(first.Take(test.Path(u"app/"_s)));
        Instance_Lock second;
        EXPECT_FALSE(second.Take(test.Path(u"app/"_s)));
        Instance_Lock elsewhere;
        EXPECT_TRUE(elsewhere.Take(test.Path(u"videos/"_s)));
    }
    Instance_Lock later;
    EXPECT_TRUE(later.Take(test.Path(u"app/"_s)));
}

TEST(StartUp, WithoutASettingsFileOneIsWrittenReadBackAndTheFormCentred)
{
    Test_Program test;
    test.Prog.Settings.App_Folder = test.Path(u"new/folder/"_s);
    test.Prog.Form.Screen = {.Left = 100, .Top = 0, .Width = 1000, .Height = 900};
    test.Prog.Form.Place = {.Left = 0, .Top = 0, .Width = 800, .Height = 600};
    ASSERT_TRUE(Start_Up(test.Prog, nullptr));
    const Ini_Document document = Load_Ini_File(test.Path(u"new/folder/Vantorra.ini"_s));
    EXPECT_EQ(document.Value(u"MainWindow"_s, u"Left"_s), u"200"_s);
    EXPECT_EQ(document.Value(u"MainWindow"_s, u"Top"_s), u"100"_s) << "a third of the room stands above";
    EXPECT_EQ(document.Value(u"Other Options"_s, u"Remove All Original Tags"_s), u"Off"_s);
    EXPECT_EQ(test.Prog.Options.chk_RemoveAllTags.Value, 0) << "what was written is what was read";
    EXPECT_EQ(test.Prog.Options.Split_Minutes, u"30"_s);
    EXPECT_TRUE(test.Prog.Settings.First_Run);
    EXPECT_EQ(test.Prog.Form.Caption, u"Vantorra ver 2.5.5                Runs a batch of files through MKVmerge"_s);
    EXPECT_TRUE(test.Prog.Form.mnu_OSVersion.Caption.startsWith(u"OS Version - "_s));
    EXPECT_FALSE(test.Prog.Form.Options_Ready);

    First_Activation(test.Prog);
    EXPECT_EQ(test.Prog.Form.Place.Top, 150);
    EXPECT_FALSE(test.Prog.Settings.First_Run);
    EXPECT_TRUE(test.Prog.Form.Options_Ready);

    test.Prog.Form.Place.Top = 7;
    First_Activation(test.Prog);
    EXPECT_EQ(test.Prog.Form.Place.Top, 7) << "later activations leave the form where it is";
}

TEST(ShutDown, TheCloseBoxIsRefusedAndEveryOtherCloseSaves)
{
    Test_Program test;
    Load_Settings(test.Prog);
    test.Prog.Options.Custom_File_Title = u"new"_s;
    const auto title = [&] {
        return Load_Ini_File(test.Prog.Settings.Ini_File).Value(u"Other Options"_s, u"Set Custom File Title Text"_s);
    };
    EXPECT_FALSE(Query_Unload(test.Prog, Close_Reason::Close_Box));
    test.Prog.Run.Run_In_Progress = true;
    EXPECT_FALSE(Query_Unload(test.Prog));
    test.Prog.Run.Run_In_Progress = false;
    test.Prog.Run.Press_In_Work = true;
    EXPECT_FALSE(Query_Unload(test.Prog)) << "the run about to begin would go on without a window";
    EXPECT_EQ(title(), u""_s);
    test.Prog.Run.Press_In_Work = false;
    test.Prog.Form.Topmost_On = test.Person.Topmost = true;
    EXPECT_TRUE(Query_Unload(test.Prog));
    EXPECT_EQ(title(), u"new"_s);
    EXPECT_FALSE(test.Person.Topmost);
    Unload(test.Prog);
    EXPECT_TRUE(test.Prog.Form.Closing);
}

TEST(MainFormKeys, ActByWhetherARunGoesOn)
{
    struct Claim
    {
        Key_Press Press;
        bool In_Run;
        bool Halt;
        int Top;
        int Unloads;
    };

    const Key_Modifiers none{};
    const Key_Modifiers shift{.Shift = true};
    const Key_Modifiers alt{.Alt = true};
    const Claim claims[] = {
        {{Key::F12, none}, false, false, 240, 0},  {{Key::F12, shift}, false, false, 3, 0},
        {{Key::F12, none}, true, false, 3, 0},     {{Key::F4, alt}, false, false, 3, 1},
        {{Key::F4, none}, false, false, 3, 0},     {{Key::F4, alt}, true, false, 3, 0},
        {{Key::Escape, none}, true, true, 3, 0},   {{Key::Escape, shift}, true, false, 3, 0},
        {{Key::Escape, none}, false, false, 3, 0}, {{Key::Other, none}, true, false, 3, 0},
    };
    for (const Claim& claim : claims) {
        Test_Program test;
        test.Prog.Form.Place = {.Left = 3, .Top = 3, .Width = 800, .Height = 600};
        test.Prog.Run.Run_In_Progress = claim.In_Run;
        Form_Key_Down(test.Prog, claim.Press);
        EXPECT_EQ(test.Prog.Form.Place.Top, claim.Top);
        EXPECT_EQ(test.Person.Unloads, claim.Unloads);
        EXPECT_EQ(test.Prog.Run.Halt_Requested, claim.Halt);
        EXPECT_EQ(test.Prog.Form.btn_Halt.Caption, claim.Halt ? u"HALTING"_s : u"HALT"_s);
    }
}

TEST(Help, IsTheFileBesideTheSettingsElseTheInstalledOne)
{
    const Test_Program test;
    const QString folder = test.Path(u"app"_s);
    const QString name = u"Vantorra 2.5.5 Help.html"_s;
    EXPECT_EQ(Find_Help_File(folder, {test.Path(u"none"_s)}), test.Path(u"app/"_s + name));
    const QString installed = test.Write(u"share/"_s + name);
    EXPECT_EQ(Find_Help_File(folder, {test.Path(u"none"_s), test.Path(u"share"_s)}), installed);
    const QString own = test.Write(u"app/"_s + name);
    EXPECT_EQ(Find_Help_File(folder, {test.Path(u"share"_s)}), own);
}
