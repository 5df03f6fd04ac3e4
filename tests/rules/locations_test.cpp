#include "rules/locations.h"

#include "common/stand_in_tool.h"
#include "common/test_installation.h"
#include "support/drop_data.h"
#include "support/paths.h"
#include "tools/tool_discovery.h"

#include <QDir>
#include <QFile>

namespace {

struct Locations_Test : testing::Test, Test_Program
{
    QString Mkvmerge(const QString& relative, const QByteArray& version = "mkvmerge v5") const
    {
        return Write_Stand_In(*this, relative, "echo " + version + "\n");
    }

    Test_Installation Installation;
    frm_Locations Form;
};

TEST_F(Locations_Test, TheFirstActivationShowsWhatIsThereAndWhatIsMissing)
{
    Locations_Activate(Prog, Form);
    EXPECT_TRUE(Form.lbl_ffprobe_PathFault.Visible && Form.lbl_MKVMerge_PathFault.Visible);
    EXPECT_FALSE(Form.lbl_ffprobe_Path.Visible || Form.lbl_ffprobe_Version.Visible || Form.btn_Clear.Enabled);
    EXPECT_TRUE(Form.btn_PathFromRegistry.Enabled);
    EXPECT_EQ(Codes(), QList<int>()) << "the form tells it in its labels";

    Prog.Tools.FFProbe_Path = Write_Stand_In(*this, u"app/ffprobe"_s, "echo probe 1 the FFmpeg developers\n");
    Prog.Tools.System_MKVMerge_Path = Mkvmerge(u"x/mkvmerge"_s);
    Locations_Activate(Prog, Form);
    EXPECT_TRUE(Form.lbl_ffprobe_PathFault.Visible) << "nothing changes until cmd_Done";
    Locations_KeyDown(Prog, Form, 41);
    EXPECT_FALSE(Form.Visible);
    Locations_Activate(Prog, Form);
    EXPECT_EQ(Form.lbl_ffprobe_Version.Caption, u""_s) << "nothing was run yet";
    Locations_Try_Tools(Prog, Form);
    EXPECT_FALSE(Form.lbl_ffprobe_PathFault.Visible || Form.lbl_MKVMerge_PathFault.Visible);
    EXPECT_EQ(Form.lbl_ffprobe_Version.Caption, u"probe 1"_s);
    EXPECT_EQ(Form.lbl_MKVMerge_Path.Caption, Prog.Tools.System_MKVMerge_Path);
    EXPECT_EQ(Form.lbl_MKVMerge_Version.Caption, u"- mkvmerge v5\r\n"_s);
    EXPECT_TRUE(Form.btn_Clear.Enabled);
}

TEST_F(Locations_Test, TheRegistryGivesThePathElseTheLocalCopyAfterTwoReports)
{
    Locations_btn_PathFromRegistry(Prog, Form);
    EXPECT_EQ(Codes(), (QList<int>{52, 52, 53}));
    EXPECT_TRUE(Form.lbl_MKVMerge_PathFault.Visible && Form.btn_PathFromRegistry.Enabled);

    Prog.Tools.Local_MKVMerge_Path = Mkvmerge(u"app/mkvmerge"_s, "local");
    Locations_btn_PathFromRegistry(Prog, Form);
    EXPECT_EQ(Codes(), (QList<int>{52, 52, 53, 52, 52}));
    EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, Prog.Tools.Local_MKVMerge_Path);
    EXPECT_EQ(Form.lbl_MKVMerge_Version.Caption, u"- local\r\n"_s);
    EXPECT_EQ(Prog.Settings.lbl_MKVMerge_Choose, u"Using Local mkvmerge"_s);
    EXPECT_TRUE(!Form.lbl_MKVMerge_PathFault.Visible && !Form.btn_PathFromRegistry.Enabled && Form.btn_Clear.Enabled);

    const QString installed = Mkvmerge(u"bin/mkvmerge"_s);
    Installation.Install(Mkvmerge(u"bin/mkvtoolnix-gui"_s));
    Locations_btn_PathFromRegistry(Prog, Form);
    EXPECT_EQ(Form.lbl_MKVMerge_Path.Caption, installed);
    EXPECT_EQ(Form.lbl_MKVMerge_Version.Caption, u"- mkvmerge v5\r\n"_s);
    EXPECT_EQ(Prog.Settings.lbl_MKVMerge_Choose, u"Read from Registry"_s);
    EXPECT_EQ(Codes().size(), 5);
}

TEST_F(Locations_Test, ADropOfTheFileOrOfItsFolderSetsThePath)
{
    const QString mkvmerge = Mkvmerge(u"a folder/mkvmerge"_s);
    for (const QString& dropped : {mkvmerge, Path(u"a folder"_s), Write(u"a folder/readme"_s)}) {
        Prog.Tools.System_MKVMerge_Path.clear();
        Locations_Drop(Prog, Form, {.Has_File_List = true, .Paths = {dropped, u"/second"_s}});
        EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, mkvmerge) << dropped.toStdString();
        EXPECT_EQ(Prog.Settings.lbl_MKVMerge_Choose, u"Set by Operator"_s);
        EXPECT_TRUE(!Form.lbl_MKVMerge_PathFault.Visible && Form.btn_Clear.Enabled &&
                    !Form.btn_PathFromRegistry.Enabled);
    }
    EXPECT_EQ(Codes(), QList<int>());
    Locations_Drop(Prog, Form, {.Has_File_List = false, .Paths = {}});
    EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, mkvmerge) << "a dropped text is nothing";
    for (const QString& dropped : {Path(u"videos"_s), u"/no/such/thing"_s, QString()}) {
        Prog.Tools.System_MKVMerge_Path = mkvmerge;
        Locations_Drop(Prog, Form, {.Has_File_List = true, .Paths = {dropped}});
        EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, QString()) << dropped.toStdString();
        EXPECT_EQ(Form.lbl_MKVMerge_PathFault.Caption, u"mkvmerge.exe can not be found at the given path!"_s);
        EXPECT_TRUE(Form.lbl_MKVMerge_PathFault.Visible);
    }
}

TEST_F(Locations_Test, BrowsingTakesAnMkvmergeAndRefusesAnythingElse)
{
    const QString mkvmerge = Mkvmerge(u"x/mkvmerge"_s);
    const QString other = Write(u"x/ffmpeg"_s);
    const auto browse = [&](const QStringList& answer) {
        Person.File_Answer = answer;
        Locations_mnu_PopupMKVMergeBrowse1(Prog, Form);
        return Person.Messages.empty() ? QString() : Person.Messages.back().Text;
    };
    EXPECT_EQ(browse({}), QString());
    EXPECT_EQ(browse({mkvmerge}), QString());
    EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, mkvmerge);
    EXPECT_EQ(browse({other}), u"mkvmerge.exe was not the file selected"_s);
    EXPECT_EQ(browse({Native(u"/gone/mkvmerge"_s)}), u"mkvmerge.exe can't be found at the given path!"_s);
    EXPECT_EQ(Person.Messages.back().Title, u"An error occurred"_s);
    EXPECT_EQ(Prog.Tools.System_MKVMerge_Path, mkvmerge);
    ASSERT_EQ(Person.File_Questions.size(), 4U);
    EXPECT_EQ(Person.File_Questions[0].Start_Folder, Prog.Settings.App_Folder);
    EXPECT_EQ(Person.File_Questions[3].Start_Folder, Path(u"x/"_s));
    EXPECT_EQ(Person.File_Questions[0].Title, u"Find and select the mkvmerge.exe file."_s);
}

} // namespace
