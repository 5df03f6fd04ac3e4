#include "common/media.h"
#include "common/stand_in_tool.h"
#include "forms/form_test.h"
#include "forms/looks.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QTableView>

/// The list at work, with the real tools.
struct Window_List : Form_Test
{
    /// A careful batch's window over three short videos, one of them no video.
    void Prepare()
    {
        for (const char* name : {"one.mkv", "three.mkv"})
            Place(Window.Files, Short_Video(), u"videos/"_s + QLatin1StringView(name));
        Window.Files.Write(u"videos/two.mp4"_s, "no video");
        ASSERT_TRUE(Window.Start());
        ASSERT_TRUE(Window.Prog().Settings.Extensions.Careful_Batch);
        Window.Set_Folders();
    }

    QTableView& Table() { return Window.Get<QTableView>("tbl_Videos"); }

    QString Cell(int row, int column) { return Table().model()->index(row, column).data().toString(); }

    /// "State Video" of each shown row.
    QString Rows()
    {
        QStringList rows;
        for (int row = 0; row < Table().model()->rowCount(); ++row)
            rows += Cell(row, 0) + u' ' + Cell(row, 1);
        return rows.join(u'|');
    }

    void Mark(int row)
    {
        Table().setFocus();
        Table().selectRow(row);
    }

    /// Chooses a command of the context menu.
    void Command(const char* name)
    {
        Window.Action(name).trigger();
        QCoreApplication::processEvents();
    }
};

TEST_F(Window_List, ACheckARunAndWhatFailedAgain)
{
    Prepare();
    EXPECT_EQ(Rows(), u"Waiting one.mkv|Waiting three.mkv|Waiting two.mp4");
    EXPECT_EQ(Window.Get<QAbstractButton>("btn_Videos").text(), u"Videos (3)");

    Click_On(Window.Get("btn_Check"));
    EXPECT_EQ(Rows(), u"Waiting one.mkv|Waiting three.mkv|Waiting two.mp4");
    EXPECT_EQ(Cell(0, 4), u"1 audio");
    EXPECT_FALSE(Cell(0, 2).isEmpty());
    EXPECT_TRUE(Cell(2, 6).contains(u"ffprobe"_s)) << Cell(2, 6).toStdString();
    EXPECT_EQ(Window.Get<QAbstractButton>("chip_Problems").text(), u"Problems 1");
    EXPECT_FALSE(QFile::exists(Window.Files.Path(u"target/one.mkv"_s)));
    EXPECT_FALSE(Window.Prog().Run.Dry_Run);

    Mark(1);
    Press(Table(), Qt::Key_Space);
    EXPECT_EQ(Rows(), u"Waiting one.mkv|Left out three.mkv|Waiting two.mp4");
    Click_On(Window.Get("btn_RunVantorra"));
    EXPECT_EQ(Rows(), u"Done one.mkv|Left out three.mkv|Failed two.mp4");
    EXPECT_FALSE(QFile::exists(Window.Files.Path(u"target/three.mkv"_s)));
    const auto& summary = Window.Get<QLabel>("lbl_RunSummary");
    EXPECT_TRUE(summary.text().startsWith(u"1 done, 0 with warnings, 1 failed, "_s)) << summary.text().toStdString();
    EXPECT_EQ(summary.palette().color(QPalette::WindowText), Fault_Colour(QApplication::palette()));
    EXPECT_TRUE(Window.Person.Boxes.empty()) << "a careful batch waits for nobody";

    EXPECT_EQ(Window.Get<QAbstractButton>("btn_RunFailed").text().remove(u'&'), u"Run failed again (1)");
    EXPECT_FALSE(Window.Get("btn_Continue").isVisible()) << "nothing but the failure is left of what is ticked";
    QFile::remove(Window.Files.Path(u"videos/two.mp4"_s));
    Place(Window.Files, Short_Video(u"mp4"_s), u"videos/two.mp4"_s);
    const QDateTime before = QFileInfo(Window.Files.Path(u"target/one.mkv"_s)).lastModified();
    Click_On(Window.Get("btn_RunFailed"));
    EXPECT_EQ(Rows(), u"Done one.mkv|Left out three.mkv|Done two.mp4");
    EXPECT_EQ(QFileInfo(Window.Files.Path(u"target/one.mkv"_s)).lastModified(), before);
    EXPECT_FALSE(Window.Get("btn_RunFailed").isVisible());

    Mark(1);
    Command("mnu_RunOnlyThese");
    EXPECT_TRUE(QFile::exists(Window.Files.Path(u"target/three.mkv"_s))) << "though it isn't ticked";
    EXPECT_EQ(Children_Left(), 0);
}

TEST_F(Window_List, ARestartKnowsWhatIsLeft)
{
    Prepare();
    QFile::remove(Window.Files.Path(u"videos/two.mp4"_s));
    Mark(0);
    Command("mnu_RunOnlyThese");
    EXPECT_EQ(Window.Get<QAbstractButton>("btn_Continue").text().remove(u'&'), u"Continue (1 left)");
    Window.Quit();
    ASSERT_TRUE(Window.Start());
    EXPECT_EQ(Rows(), u"Done one.mkv|Waiting three.mkv");
    // Done by other options isn't done.
    Click_On(Window.Get("chk_RemoveAllTags"));
    EXPECT_TRUE(Wait_Until([this] { return !Window.Get("btn_Continue").isVisible(); }));
    EXPECT_EQ(Rows(), u"Waiting one.mkv|Waiting three.mkv");
    Click_On(Window.Get("chk_RemoveAllTags"));
    EXPECT_TRUE(Wait_Until([this] { return Window.Get("btn_Continue").isVisible(); }));
    Click_On(Window.Get("btn_Continue"));
    EXPECT_EQ(Rows(), u"Done one.mkv|Done three.mkv");
    EXPECT_FALSE(Window.Get("btn_Continue").isVisible());
}

TEST_F(Window_List, RunStopsACheckAndFollowsItAndEscapeStopsIt)
{
    Prepare();
    Window.Choose("mnu_AtOnce2");
    bool pressed = false;
    QTimer look;
    const auto in_check = [&](const std::function<void()>& action) {
        pressed = false;
        look.disconnect();
        QObject::connect(&look, &QTimer::timeout, &look, [&, action] {
            if (Window.Prog().Run.Checking && Window.Prog().Videos.In_Work >= 0 && !std::exchange(pressed, true))
                action();
        });
        look.start(1);
        Click_On(Window.Get("btn_Check"));
        EXPECT_TRUE(pressed);
    };
    in_check([&] {
        EXPECT_TRUE(Window.Get("btn_RunVantorra").isVisible());
        EXPECT_EQ(Window.Get<QAbstractButton>("btn_Check").text().remove(u'&'), u"Stop Check");
        Press(Window.Form(), Qt::Key_Escape);
    });
    EXPECT_EQ(Rows(), u"Waiting one.mkv|Waiting three.mkv|Waiting two.mp4");
    EXPECT_TRUE(Window.Get("fram_WholeForm").isEnabled());
    EXPECT_TRUE(Window.Get("btn_RunVantorra").isEnabled());
    in_check([&] { Click_On(Window.Get("btn_RunVantorra")); });
    EXPECT_EQ(Rows(), u"Done one.mkv|Done three.mkv|Failed two.mp4");
    EXPECT_EQ(Children_Left(), 0);
}

TEST_F(Window_List, ItsCommandsShowAndCopyWhatIsKnownOfARow)
{
    Prepare();
    Window.Form().activateWindow();
    Press(Table(), Qt::Key_F, Qt::ControlModifier);
    Press(Table(), Qt::Key_Down);
    EXPECT_EQ(Window.Prog().Videos.Selected, std::vector{0});
    Press(Table(), Qt::Key_End);
    EXPECT_EQ(Window.Prog().Videos.Selected, std::vector{2});
    EXPECT_FALSE(Window.Action("mnu_VideoCommand").isEnabled()) << "nothing is known yet";
    Click_On(Window.Get("chip_Failed"));
    EXPECT_FALSE(Window.Action("mnu_VideoLog").isEnabled()) << "it is out of sight";
    Click_On(Window.Get("chip_All"));
    Window.Prog().Options.Log_Verbosity = 1;
    Click_On(Window.Get("btn_RunVantorra"));
    Mark(2);
    Command("mnu_VideoReason");
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(u"two.mp4: ffprobe"_s));
    Mark(0);
    Command("mnu_VideoCommand");
    EXPECT_TRUE(QApplication::clipboard()->text().contains(Window.Files.Path(u"videos/one.mkv"_s)));

    Window.Person.On_Form[u"frm_ViewVFI"_s] = [](QWidget& form) {
        EXPECT_TRUE(Wait_Until([&] { return !In<QPlainTextEdit>(form, "txt_VideoInfo").toPlainText().isEmpty(); }));
        Push(form, "btn_Done");
    };
    Press(Table(), Qt::Key_Return);
    EXPECT_TRUE(Wait_Until([this] { return Window.Person.Forms.contains(u"frm_ViewVFI"_s); }));
    bool classic = false;
    Window.Choose("mnu_CarefulBatch");
    classic = !Table().model()->index(0, 1).data(Qt::CheckStateRole).isValid();
    EXPECT_TRUE(classic) << "a classic run takes all: there is nothing to tick";
    EXPECT_FALSE(Window.Get("btn_RunFailed").isVisible());
}

TEST_F(Window_List, ChangesOnTheDiskAreSeenAndAClassicRunShowsItsStates)
{
    Prepare();
    Window.Choose("mnu_CarefulBatch");
    QFile::remove(Window.Files.Path(u"videos/two.mp4"_s));
    Place(Window.Files, Short_Video(), u"videos/zero.mkv"_s);
    EXPECT_TRUE(Wait_Until([this] { return Rows() == u"Waiting one.mkv|Waiting three.mkv|Waiting zero.mkv"; }));
    Click_On(Window.Get("btn_RunVantorra"));
    EXPECT_EQ(Rows(), u"Done one.mkv|Done three.mkv|Done zero.mkv");
    // The strip, and back.
    Click_On(Window.Get("btn_Videos"));
    EXPECT_FALSE(Table().isVisible());
    Click_On(Window.Get("btn_Videos"));
    EXPECT_TRUE(Table().isVisible());
}
