#include "tools/tools_fixture.h"

#include <QFileInfo>
#include <thread>

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
