#include "rules/attachments_dialog.h"

#include "common/test_program.h"
#include "support/drop_data.h"

#include <QDir>

struct AttachmentsDialog : testing::Test, Test_Program
{
    AttachmentsDialog() { Write(u"fonts/a.ttf"_s); }

    const QString Folder = Path(u"fonts/"_s);
};

TEST_F(AttachmentsDialog, ADropTakesAFolderAndRefusesAllElse)
{
    const Attachments_Form& form = Prog.Attachments_Dialog;
    Drop_On_Attachments_Panel(Prog, {.Has_File_List = true, .Paths = {Path(u"fonts"_s)}});
    EXPECT_EQ(form.lbl_AttachmentsPath.Caption, Folder);
    EXPECT_TRUE(form.btn_Clear.Enabled && form.lbl_UseSubfolders.Enabled);
    EXPECT_FALSE(form.lbl_AttachmentsPathFault.Visible || form.btn_Restore.Enabled);
    EXPECT_TRUE(Prog.Options.chk_UseSubfolders.Enabled && Prog.Options.chk_AddAttachments.Enabled);
    EXPECT_EQ(Prog.Options.chk_AddAttachments.Caption, u"Add Attachments (path set)"_s);
    for (const Drop_Data& data : {Drop_Data{true, {Path(u"fonts/a.ttf"_s)}}, Drop_Data{true, {Path(u"gone"_s)}}, {}}) {
        Apply_Attachment_Path(Prog);
        Drop_On_Attachments_Panel(Prog, data);
        EXPECT_EQ(Prog.Options.Path_Attachments, Folder); // ignored, only shown as not set
        EXPECT_EQ(form.lbl_AttachmentsPath.Caption, u""_s);
        EXPECT_TRUE(form.lbl_AttachmentsPathFault.Visible);
        EXPECT_FALSE(Prog.Options.chk_UseSubfolders.Enabled);
        EXPECT_TRUE(Prog.Options.chk_AddAttachments.Enabled);
    }
}

TEST_F(AttachmentsDialog, DoneFallsBackToNotSetIfTheFolderHasVanished)
{
    Prog.Options.Path_Attachments = Folder;
    Open_Attachments_Dialog(Prog);
    cmd_Attachments_Done_Click(Prog);
    EXPECT_EQ(Prog.Options.chk_AddAttachments.Caption, u"Add Attachments (path set)"_s);
    EXPECT_FALSE(Prog.Attachments_Dialog.Visible);
    QDir(Folder).removeRecursively();
    Open_Attachments_Dialog(Prog);
    cmd_Attachments_Done_Click(Prog);
    EXPECT_EQ(Prog.Options.chk_AddAttachments.Caption, u"Add Attachments (path not set)"_s);
    EXPECT_EQ(Prog.Attachments_Dialog.lbl_AttachmentsPath.Caption, u""_s);
}
