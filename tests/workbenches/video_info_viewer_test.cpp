#include "workbenches/video_info_viewer.h"

#include "common/stand_in_tool.h"
#include "support/drop_data.h"

#include <QDir>
#include <QFile>

namespace {

/// The local copy is a stand-in that prints the last argument between two lines of its own.
struct Info_Test : testing::Test, Test_Program
{
    Info_Test()
    {
        Prog.Tools.Local_MKVMerge_OK = true;
        Prog.Tools.Local_MKVMerge_Path = Tool("echo 'T [codec_private_data:00 x:a\\sb]'\necho\necho \"$4\"\n");
        Write(u"videos/film.part1.mkv"_s);
        Write(u"videos/notes.txt"_s);
        ViewVFI_Load(Prog, Form);
        ViewVFI_Activate(Prog, Form);
    }

    QString Tool(const QByteArray& body) const
    {
        return Write_Stand_In(*this, u"app/mkvmerge"_s, "[ \"$1\" = -V ] && echo v19 && exit\n" + body);
    }

    QString Shown(const QString& path) const
    {
        return u"T [ codec_private_data:XX x:a b]     \r\n"_s + path + u"     "_s;
    }

    frm_ViewVFI Form;
    const QString Film = Path(u"videos/film.part1.mkv"_s);
};

TEST_F(Info_Test, APickedFileIsShownAndADroppedOneWithItsName)
{
    EXPECT_EQ(Form.lst_VideoFiles, QStringList{u"film.part1.mkv"_s});
    EXPECT_FALSE(Form.btn_SaveToFile.Enabled || Form.btn_ShowCodecData.Enabled);
    const QString notes = Path(u"videos/notes.txt"_s);
    ViewVFI_txt_VideoInfo_Drop(Prog, Form, {.Has_File_List = true, .Paths = {notes, Film}});
    EXPECT_EQ(Form.txt_VideoInfo, Shown(notes));
    EXPECT_EQ(Form.lbl_FileName.Caption, notes);
    EXPECT_TRUE(Form.shp_VideoInfo.Visible && Form.btn_SaveToFile.Enabled && Form.btn_ShowCodecData.Enabled);
    EXPECT_EQ(Form.List_Index, -1);

    ViewVFI_lst_VideoFiles_Click(Prog, Form, 0);
    EXPECT_EQ(Form.txt_VideoInfo, Shown(Film));
    EXPECT_EQ(Form.lbl_FileName.Caption, QString());
    EXPECT_FALSE(Form.shp_VideoInfo.Visible);
    ViewVFI_lst_VideoFiles_Click(Prog, Form, -1);
    EXPECT_FALSE(Form.btn_SaveToFile.Enabled || Form.btn_ShowCodecData.Enabled);
    EXPECT_EQ(Form.Shown_File, Film);
}

TEST_F(Info_Test, ADropOfAnythingButAFileIsThePathError)
{
    for (const Drop_Data& data : {Drop_Data{}, Drop_Data{.Has_File_List = true, .Paths = {}},
                                  Drop_Data{.Has_File_List = true, .Paths = {Path(u"videos"_s), Film}},
                                  Drop_Data{.Has_File_List = true, .Paths = {QString()}}}) {
        Person.Messages.clear();
        ViewVFI_txt_VideoInfo_Drop(Prog, Form, data);
        ASSERT_EQ(Person.Messages.size(), 1U);
        EXPECT_EQ(Person.Messages[0].Title, u"Error #440 - Invalid File Name."_s);
        EXPECT_EQ(Form.txt_VideoInfo, QString());
    }
}

TEST_F(Info_Test, PrivateValuesAreShownAndHiddenAgain)
{
    ViewVFI_lst_VideoFiles_Click(Prog, Form, 0);
    ViewVFI_btn_ShowCodecData(Prog, Form);
    EXPECT_EQ(Form.txt_VideoInfo, u"T [codec_private_data:00 x:a\\sb]     \r\n"_s + Film + u"     "_s);
    EXPECT_EQ(Form.btn_ShowCodecData.Caption, u"Hide Codec Private Data"_s);
    ViewVFI_btn_Done(Prog, Form);
    EXPECT_FALSE(Form.btn_ShowCodecData.Enabled);
    EXPECT_EQ(Form.btn_ShowCodecData.Caption, u"Hide Codec Private Data"_s) << "outlives the closing";
    ViewVFI_Activate(Prog, Form);
    EXPECT_EQ(Form.txt_VideoInfo, QString());
    ViewVFI_btn_ShowCodecData(Prog, Form);
    EXPECT_EQ(Form.btn_ShowCodecData.Caption, u"Show Codec Private Data"_s);
    EXPECT_EQ(Form.txt_VideoInfo, Shown(Film));
}

TEST_F(Info_Test, TheTextIsSavedBesideTheFileUnderItsNameUpToTheLastPoint)
{
    const std::tuple<QString, QString> cases[] = {{u"/v/film.part1.mkv"_s, u"/v/film.part1 Video Info.txt"_s},
                                                  {u"/v.x/film"_s, u"/v.x/film Video Info.txt"_s},
                                                  {u"/v/.mkv"_s, u"/v/ Video Info.txt"_s}};
    for (const auto& [path, saved] : cases)
        EXPECT_EQ(Video_Info_File(Native(path)), Native(saved));

    ViewVFI_lst_VideoFiles_Click(Prog, Form, 0);
    Write(u"videos/film.part1 Video Info.txt"_s, QByteArray(9999, 'x'));
    ViewVFI_btn_SaveToFile(Prog, Form);
    EXPECT_EQ(Read(u"videos/film.part1 Video Info.txt"_s), Shown(Film).toUtf8());
    EXPECT_EQ(Form.Focus, u"btn_Done"_s);
    EXPECT_TRUE(Person.Messages.empty());
    Form.Shown_File = Path(u"gone/film.mkv"_s);
    ViewVFI_btn_SaveToFile(Prog, Form);
    ASSERT_EQ(Person.Messages.size(), 1U);
    EXPECT_TRUE(Person.Messages[0].Text.contains(Native(u"gone/film Video Info.txt"_s)));
}

TEST_F(Info_Test, AChangedFolderShowsAtTheNextOpening)
{
    ViewVFI_txt_VideoInfo_Drop(Prog, Form, {.Has_File_List = true, .Paths = {Film}});
    QFile::remove(Film);
    ViewVFI_Activate(Prog, Form);
    EXPECT_EQ(Form.lst_VideoFiles.size(), 1) << "still open";
    ViewVFI_KeyDown(Prog, Form, 13, false);
    ViewVFI_Activate(Prog, Form);
    EXPECT_EQ(Form.lst_VideoFiles, QStringList());
    EXPECT_EQ(Form.txt_VideoInfo + Form.lbl_FileName.Caption, u""_s) << "nothing is left of a drop";
    EXPECT_FALSE(Form.shp_VideoInfo.Visible);
}

} // namespace
