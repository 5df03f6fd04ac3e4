#include "tools/tools_fixture.h"

static const QByteArray Accepted = "mkvmerge v19.0.0 ('Brave Captain') 64-bit";

TEST_F(Tools_Test, WithoutAnyToolTheRunButtonIsDisabledAndEachReportShowsOnce)
{
    Prog.Settings.Mkvmerge_Path_Ini = Native(u"/gone/mkvmerge"_s);
    Discover_Tools(Prog);
    EXPECT_EQ(Codes(), (QList<int>{20, 52, 53}));
    EXPECT_FALSE(Prog.Form.btn_RunVantorra.Enabled);
    EXPECT_FALSE(Prog.Form.btn_ViewVidInfo.Enabled);
    EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, Executable_Name(u"mkvmerge"_s));
}

TEST_F(Tools_Test, OnlyTheAcceptedVersionIsALocalCopy)
{
    const std::pair<QByteArray, bool> cases[] = {{Accepted, true},
                                                 {Accepted.toUpper(), true},
                                                 {"mkvmerge v74.0.0 ('You Oughta Know') 64-bit", false},
                                                 {"", false}};
    for (const auto& [words, found] : cases) {
        const QString path = Says(u"app/mkvmerge"_s, words);
        EXPECT_EQ(Find_Local_MKVMerge(Prog), found) << words.data();
        EXPECT_EQ(Prog.Tools.Local_MKVMerge_Path, found ? path : QString()) << words.data();
    }
    const QString local = Path(Executable_Name(u"app/mkvmerge"_s));
    QFile::remove(local);
    QDir().mkpath(local);
    EXPECT_FALSE(Find_Local_MKVMerge(Prog)) << "a folder";
    EXPECT_TRUE(Person.Messages.empty());
}

TEST_F(Tools_Test, AToolThatCantTellItsVersionIsReported)
{
    Prog.Tools.System_MKVMerge_Path = Says_Nothing(u"bin/mkvmerge"_s);
    EXPECT_FALSE(Get_System_MKVMerge_Version(Prog));
    Prog.Tools.System_MKVMerge_Path = Path(u"bin"_s);
    EXPECT_FALSE(Get_System_MKVMerge_Version(Prog)) << "a folder";
    Prog.Tools.System_MKVMerge_Path = Write(u"plain"_s, "mkvmerge v1");
    EXPECT_FALSE(Get_System_MKVMerge_Version(Prog)) << "no program";
    EXPECT_EQ(Codes(), (QList<int>{3, 2, 2}));
    EXPECT_FALSE(Get_Local_MKVMerge_Version(Prog)) << "no local copy";
    EXPECT_EQ(Codes().size(), 3);
    EXPECT_EQ(Prog.Tools.Local_MKVMerge_Path, Path(Executable_Name(u"app/mkvmerge"_s)));
}

TEST_F(Tools_Test, AToolThatHangsGivesWayToAHalt)
{
    Prog.Tools.System_MKVMerge_Path =
        Write_Stand_In(*this, u"bin/mkvmerge"_s, "echo mkvmerge v1\nexec /bin/sleep 1000\n");
    Person.On_Pump = [&] { Prog.Run.Halt_Requested = Person.Pumps > 3; };
    Get_System_MKVMerge_Version(Prog);
    EXPECT_EQ(Prog.Tools.System_MKVMerge_Version, u"mkvmerge v1\r\n"_s);
    EXPECT_LT(Prog.Run.Exit_Status, 0);
}

TEST_F(Tools_Test, PathsAreCheckedForExistenceAndName)
{
    const QString file = Write(u"dir/MkvMerge"_s);
    const std::tuple<QString, QString, int> cases[] = {{{}, u"mkvmerge"_s, 4},
                                                       {file + u"x"_s, u"mkvmerge"_s, 2},
                                                       {Path(u"dir"_s), u"mkvmerge"_s, 2},
                                                       {file, u"ffprobe"_s, 1},
                                                       {file, {}, 3},
                                                       {file, u"mkvmerge"_s, 0}};
    for (const auto& [path, wanted, wanted_code] : cases) {
        int code = -1;
        EXPECT_EQ(Check_Path(path, wanted, code), wanted_code == 3 || wanted_code == 0);
        EXPECT_EQ(code, wanted_code);
    }
}

TEST_F(Tools_Test, TheLocalCopyIdentifiesElseWithTheExtensionTheSystemCopy)
{
    EXPECT_EQ(Which_Tool_Identifies(Prog), Identifying_Tool::None);
    Prog.Tools.System_MKVMerge_Path = Says(u"bin/mkvmerge"_s, "mkvmerge v74");
    Prog.Settings.Mkvmerge_Path_Ini = Prog.Tools.System_MKVMerge_Path;
    EXPECT_EQ(Which_Tool_Identifies(Prog), Identifying_Tool::System_Json);
    Prog.Settings.Extensions.Identify_With_Any_Mkvmerge = false;
    EXPECT_EQ(Which_Tool_Identifies(Prog), Identifying_Tool::None);
    pic_ViewVidInfo_Click(Prog);
    Says(u"app/mkvmerge"_s, Accepted);
    Discover_Tools(Prog);
    EXPECT_EQ(Which_Tool_Identifies(Prog), Identifying_Tool::Local_Verbose_Text);
    EXPECT_TRUE(Prog.Form.btn_ViewVidInfo.Enabled);
    pic_ViewVidInfo_Click(Prog);
    EXPECT_EQ(Codes(), (QList<int>{60, 20, 5}));
    Prog.Tools.Local_MKVMerge_Runs = true;
    pic_ViewVidInfo_Click(Prog);
    EXPECT_EQ(Codes().size(), 3);
}
