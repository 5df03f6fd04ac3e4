#include "common/registered_program_win32.h"
#include "tools/tools_fixture.h"

namespace {

struct Registered_Tools : Tools_Test
{};

} // namespace

TEST_F(Registered_Tools, TheInstalledMkvmergeIsTheOneBesideTheRegisteredProgram)
{
    EXPECT_EQ(Installed_MKVToolNix(), u""_s);
    const QString own = Says(u"person/mkvmerge"_s, "x");
    const QString all = Says(u"machine/mkvmerge"_s, "x");
    const QString person_gui = Says(u"person/mkvtoolnix-gui"_s, "x");
    const QString gui = Says(u"machine/mkvtoolnix-gui"_s, "x");
    QString path;
    // By what root, as what, and the mkvmerge that it leads to.
    const std::tuple<HKEY, QString, DWORD, QString> claims[] = {
        {HKEY_CURRENT_USER, person_gui, REG_SZ, own},
        {HKEY_LOCAL_MACHINE, u'"' + gui + u'"', REG_SZ, all},
        {HKEY_LOCAL_MACHINE, QString(gui).replace(u'\\', u'/'), REG_SZ, all},
        {HKEY_LOCAL_MACHINE, QString(gui).replace(Path(), u"%Test_Root%\\"_s), REG_EXPAND_SZ, all},
    };
    qputenv("Test_Root", Path().chopped(1).toUtf8());
    for (const auto& [root, registered, type, mkvmerge] : claims) {
        Register_MKVToolNix(root, registered, type);
        EXPECT_TRUE(Find_MKVMerge_In_Registry(Prog, path)) << registered.toStdString();
        EXPECT_EQ(path, mkvmerge) << registered.toStdString();
    }
    Register_MKVToolNix(HKEY_LOCAL_MACHINE, u"C:\\gone\\mkvtoolnix-gui.exe"_s);
    EXPECT_FALSE(Find_MKVMerge_In_Registry(Prog, path));
    EXPECT_EQ(Codes(), QList<int>{52});
}

TEST_F(Registered_Tools, TheSystemCopyIsTheSettingsPathElseTheRegisteredOneElseTheLocalOne)
{
    const QString kept = Says(u"my tools/mkvmerge"_s, "mkvmerge v1");
    const QString installed = Says(u"suite/mkvmerge"_s, "mkvmerge v1");
    Installation.Install(Says(u"suite/mkvtoolnix-gui"_s, "x"));
    Prog.Tools.Local_MKVMerge_Path = u"C:\\local\\mkvmerge.exe"_s;
    const std::tuple<QString, QString, QString, QList<int>> claims[] = {
        {kept, kept, u"Set by Operator"_s, {}},
        {u"C:\\gone"_s, installed, u"Read from Registry"_s, {}},
        {{}, u"C:\\local\\mkvmerge.exe"_s, u"Using Local mkvmerge"_s, {52}}};
    for (const auto& [of_settings, path, choice, codes] : claims) {
        Prog.Settings.Mkvmerge_Path_Ini = of_settings;
        if (of_settings.isEmpty())
            QFile::remove(installed);
        EXPECT_TRUE(Find_System_MKVMerge(Prog));
        EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, path);
        EXPECT_EQ(Prog.Settings.lbl_MKVMerge_Choose, choice);
        EXPECT_EQ(Codes(), codes);
    }
}

TEST_F(Registered_Tools, FFProbeOfPathIsUsedWhereItLiesUntilOneLiesInTheProgramsFolder)
{
    const QString ffprobe = Says(u"bin/ffprobe"_s, "ffprobe version 1");
    qputenv("PATH", "relative;;\"" + Path(u"bin"_s).toUtf8() + "\"");
    Link_FFProbe(Prog);
    EXPECT_FALSE(QFile::exists(Path(u"app/ffprobe.exe"_s)));
    EXPECT_TRUE(Find_FFProbe(Prog));
    EXPECT_EQ(Prog.Tools.FFProbe_Path, ffprobe);
    const QString own = Says(u"app/ffprobe"_s, "ffprobe version 1");
    EXPECT_TRUE(Find_FFProbe(Prog));
    EXPECT_EQ(Prog.Tools.FFProbe_Path, own);
    EXPECT_TRUE(Person.Messages.empty());
}
