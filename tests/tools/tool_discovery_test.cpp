#include "tools/tool_discovery.h"

#include "common/stand_in_tool.h"
#include "tools/installed_tools.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <thread>

namespace {

/// A program whose PATH holds only what the test lays into root/bin, and the shell's own tools.
struct Tools_Test : testing::Test, Test_Program
{
    Tools_Test() : former_path_(qgetenv("PATH"))
    {
        QDir().mkpath(Path(u"bin"_s));
        Set_Path({u"bin"_s});
    }

    ~Tools_Test() override { qputenv("PATH", former_path_); }

    void Set_Path(const QStringList& folders) const
    {
        QStringList path;
        for (const QString& folder : folders)
            path += Path(folder);
        qputenv("PATH", path.join(u':').toUtf8());
    }

    QString Says(const QString& relative, const QByteArray& words) const
    {
        return Write_Stand_In(*this, relative, "echo \"" + words + "\"\n");
    }

    QString Says_Nothing(const QString& relative) const { return Write_Stand_In(*this, relative, ""); }

  private:
    QByteArray former_path_;
};

const QByteArray Accepted = "mkvmerge v19.0.0 ('Brave Captain') 64-bit";

TEST_F(Tools_Test, WithoutAnyToolTheRunButtonIsDisabledAndEachReportShowsOnce)
{
    Prog.Settings.Mkvmerge_Path_Ini = u"/gone/mkvmerge"_s;
    Discover_Tools(Prog);
    EXPECT_EQ(Codes(), (QList<int>{20, 52, 53}));
    EXPECT_FALSE(Prog.Form.btn_RunVantorra.Enabled);
    EXPECT_FALSE(Prog.Form.btn_ViewVidInfo.Enabled);
    EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, u"mkvmerge"_s);
}

TEST_F(Tools_Test, FFProbeOfPathIsLinkedIntoTheProgramsFolder)
{
    const QString ffprobe = Says(u"bin/ffprobe"_s, "ffprobe version 1");
    const QString own = Path(u"app/ffprobe"_s);
    Link_FFProbe(Prog);
    EXPECT_EQ(QFileInfo(own).symLinkTarget(), ffprobe);

    QFile::remove(own);
    ASSERT_TRUE(QFile::link(Path(u"gone"_s), own));
    Link_FFProbe(Prog);
    EXPECT_EQ(QFileInfo(own).symLinkTarget(), ffprobe) << "a link that leads nowhere is replaced";

    QFile::remove(own);
    QDir().mkpath(own);
    Link_FFProbe(Prog);
    ASSERT_EQ(Person.Messages.size(), 1U) << "a folder stands in the way";
    EXPECT_TRUE(Person.Messages[0].Text.contains(own));
    QDir().rmdir(own);

    Test_Program other;
    other.Prog.Settings.App_Folder = Prog.Settings.App_Folder;
    for (int round = 0; round < 200; ++round) {
        std::thread at_once([&] { Link_FFProbe(other.Prog); });
        Link_FFProbe(Prog);
        at_once.join();
        ASSERT_TRUE(QFile::remove(own));
    }
    EXPECT_EQ(Person.Messages.size() + other.Person.Messages.size(), 1U)
        << "of two first starts, the later one is content";

    Prog.Run.Dry_Run = true;
    Link_FFProbe(Prog);
    EXPECT_FALSE(QFileInfo::exists(own));
    EXPECT_TRUE(Find_FFProbe(Prog));
    EXPECT_EQ(Prog.Tools.FFProbe_Path, ffprobe);
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
    QFile::remove(Path(u"app/mkvmerge"_s));
    QDir().mkpath(Path(u"app/mkvmerge"_s));
    EXPECT_FALSE(Find_Local_MKVMerge(Prog)) << "a folder";
    EXPECT_TRUE(Person.Messages.empty());
}

TEST_F(Tools_Test, TheSystemCopyIsTheSettingsPathElseTheInstalledOneElseTheLocalOne)
{
    const QString kept = Says(u"my tools/mkvmerge"_s, "mkvmerge v1");
    const QString installed = Says(u"bin/mkvmerge"_s, "mkvmerge v1");
    Prog.Tools.Local_MKVMerge_Path = u"/local/mkvmerge"_s;
    Prog.Settings.Mkvmerge_Path_Ini = kept;
    const std::tuple<QString, QString, QList<int>> claims[] = {{kept, u"Set by Operator"_s, {}},
                                                               {installed, u"Read from Registry"_s, {}},
                                                               {u"/local/mkvmerge"_s, u"Using Local mkvmerge"_s, {52}}};
    for (const auto& [path, choice, codes] : claims) {
        EXPECT_TRUE(Find_System_MKVMerge(Prog));
        EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, path);
        EXPECT_EQ(Prog.Settings.lbl_MKVMerge_Choose, choice);
        EXPECT_EQ(Codes(), codes);
        Prog.Settings.Mkvmerge_Path_Ini = u"/gone"_s;
        if (path == installed)
            QFile::remove(installed);
    }
}

TEST_F(Tools_Test, TheInstalledMkvmergeIsTheOneBesideTheGraphicalProgram)
{
    Says(u"bin/mkvmerge"_s, "x");
    const QString gui = Says(u"suite/mkvtoolnix-gui"_s, "x");
    Says(u"lonely/mkvtoolnix-gui"_s, "x");
    Set_Path({u"lonely"_s, u"bin"_s, u"suite"_s});
    EXPECT_EQ(Installed_MKVToolNix(), Path(u"bin/mkvmerge"_s)) << "no graphical program has an mkvmerge beside it";
    const QString beside = Says(u"suite/mkvmerge"_s, "x");
    EXPECT_EQ(Installed_MKVToolNix(), gui);
    QString path;
    EXPECT_TRUE(Find_MKVMerge_In_Registry(Prog, path));
    EXPECT_EQ(path, beside);

    Set_Path({u"lonely"_s});
    EXPECT_TRUE(Find_MKVMerge_In_Registry(Prog, path)) << "nothing installed: the former path stays acceptable";
    EXPECT_EQ(path, beside);
    path = u"/gone/mkvmerge"_s;
    EXPECT_FALSE(Find_MKVMerge_In_Registry(Prog, path));
    EXPECT_EQ(path, u"mkvmerge"_s);
    EXPECT_EQ(Codes(), QList<int>{52});
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
    EXPECT_EQ(Prog.Tools.Local_MKVMerge_Path, Path(u"app/mkvmerge"_s));
}

TEST_F(Tools_Test, AToolThatHangsGivesWayToAHalt)
{
    Prog.Tools.System_MKVMerge_Path =
        Write_Stand_In(*this, u"bin/mkvmerge"_s, "echo mkvmerge v1\nexec /bin/sleep 1000\n");
    Person.On_Pump = [&] { Prog.Run.Halt_Requested = Person.Pumps > 3; };
    Get_System_MKVMerge_Version(Prog);
    EXPECT_EQ(Prog.Tools.System_MKVMerge_Version, u"mkvmerge v1\r\n"_s);
    EXPECT_EQ(Prog.Run.Exit_Status, -9);
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

} // namespace
