#include "rules/attachments_dialog.h"

#include "common/test_program.h"
#include "support/drop_data.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

struct AttachmentsDialog : testing::Test, Test_Program
{
    AttachmentsDialog()
    {
        Folder = Path(u"fonts/"_s);
        Write(u"fonts/a.ttf"_s);
    }

    /// The state that belongs to a folder, or to none.
    void Expect_Applied(const QString& path) const
    {
        const bool set = !path.isEmpty();
        const Attachments_Form& form = Prog.Attachments_Dialog;
        EXPECT_EQ(Prog.Options.Path_Attachments, path);
        EXPECT_EQ(form.lbl_AttachmentsPath.Caption, path);
        EXPECT_EQ(form.lbl_AttachmentsPathFault.Visible, !set);
        EXPECT_EQ(form.btn_Clear.Enabled, set);
        EXPECT_EQ(form.btn_Restore.Enabled, !form.Kept_Path.isEmpty() && !set);
        EXPECT_EQ(form.lbl_UseSubfolders.Enabled, set);
        EXPECT_EQ(Prog.Options.chk_UseSubfolders.Enabled, set);
        EXPECT_EQ(Prog.Options.chk_AddAttachments.Enabled, set);
        EXPECT_EQ(Prog.Options.chk_AddAttachments.Caption,
                  set ? u"Add Attachments (path set)"_s : u"Add Attachments (path not set)"_s);
    }

    QString Folder;
};

TEST_F(AttachmentsDialog, ADropTakesAFolderAndRefusesAllElse)
{
    Drop_On_Attachments_Panel(Prog, {.Has_File_List = true, .Paths = {Path(u"fonts"_s)}});
    Expect_Applied(Folder);
    for (const Drop_Data& data : {Drop_Data{.Has_File_List = true, .Paths = {Path(u"fonts/a.ttf"_s)}},
                                  Drop_Data{.Has_File_List = true, .Paths = {Path(u"gone"_s)}}, Drop_Data{}}) {
        Apply_Attachment_Path(Prog);
        Drop_On_Attachments_Panel(Prog, data);
        EXPECT_EQ(Prog.Options.Path_Attachments, Folder); // ignored, only shown as not set
        EXPECT_EQ(Prog.Attachments_Dialog.lbl_AttachmentsPath.Caption, u""_s);
        EXPECT_TRUE(Prog.Attachments_Dialog.lbl_AttachmentsPathFault.Visible);
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
