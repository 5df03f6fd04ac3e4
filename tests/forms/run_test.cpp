#include "common/media.h"
#include "common/stand_in_tool.h"
#include "forms/progress_box.h"
#include "forms/test_window.h"

#include <QApplication>
#include <QElapsedTimer>

/// Runs from the button to their end, with events from the person while they go on.
struct Window_Run : testing::Test
{
    Test_Window Window;

    void Prepare()
    {
        ASSERT_TRUE(Window.Start());
        Window.Set_Folders();
        ASSERT_TRUE(Window.Get("btn_RunVantorra").isEnabled());
    }

    /// Presses Run; `action` is done once when the progress shows.
    void Run_And(const std::function<void()>& action)
    {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            if (!Window.Prog().Form.lbl_ProgressFinished.Visible || !Window.Prog().Run.Run_In_Progress)
                return;
            look.stop();
            action();
        });
        look.start(1);
        Click_On(Window.Get("btn_RunVantorra"));
    }

    /// A video whose muxing goes on for long.
    void Place_Slow_Video()
    {
        Place(Window.Files, Short_Video(), u"videos/slow.mkv"_s);
        Window.Prog().Run.Kill_By_Name = false; // other tests run mkvmerge too
        Window.Prog().Tools.System_MKVMerge_Path =
            Write_Stand_In(Window.Files, u"slow/mkvmerge"_s,
                           "echo \"mkvmerge v74.0.0 ('You Oughta Know') 64-bit\"\n"
                           "[ \"$1\" = -V ] && exit 0\necho 'Progress: 10%'\nsleep 30\n");
    }
};

TEST_F(Window_Run, AWholeRunFromTheButtonToFinished)
{
    Prepare();
    Place(Window.Files, Short_Video(), u"videos/one.mkv"_s);
    Place(Window.Files, Short_Video(u"mp4"_s), u"videos/two.mp4"_s);
    const QPoint run_at = Window.Get("btn_RunVantorra").mapToGlobal(QPoint());
    bool locked = false;
    bool halt_stood_there = false;
    Run_And([&] {
        locked = !Window.Get("fram_WholeForm").isEnabled() &&
                 !Window.Get<QMenu>("mnu_File").menuAction()->isEnabled() && !Window.Get("img_Quit").isVisible();
        const QWidget& halt = Window.Get("btn_Halt");
        halt_stood_there = halt.isVisible() && halt.mapToGlobal(QPoint()).x() == run_at.x();
    });
    EXPECT_TRUE(locked && halt_stood_there);
    EXPECT_EQ(Window.Get<QLabel>("lbl_ProgressFinished").text(), u"FINISHED");
    EXPECT_EQ(Window.Get<Progress_Box>("pic_Progress").Look(), Progress_Look::Finished);
    EXPECT_TRUE(Window.Get("btn_RunVantorra").isVisible());
    EXPECT_FALSE(Window.Get("btn_Halt").isVisible());
    EXPECT_TRUE(Window.Get("fram_WholeForm").isEnabled());
    EXPECT_TRUE(QFile::exists(Window.Files.Path(u"target/one.mkv"_s)));
    EXPECT_TRUE(QFile::exists(Window.Files.Path(u"target/two.mkv"_s)));
    EXPECT_TRUE(QFile::exists(Window.Files.Path(u"app/Vantorra_Process.log"_s)));
    EXPECT_EQ(Children_Left(), 0);
}

TEST_F(Window_Run, EnterStartsAndAFolderWithoutVideosIsRefused)
{
    Prepare();
    Window.Files.Write(u"videos/notes.txt"_s, "no video");
    Window.Prog().Form.pic_VideosPath.Caption = u" Video Files Path (drag 'n drop)   3 Files Found "_s;
    Window.Get("btn_RunVantorra").setFocus();
    Press(Window.Form(), Qt::Key_Return);
    EXPECT_EQ(Window.Get<QLabel>("lbl_VideoPathFault").text(), u"NO VIDEO FILES FOUND!");
    EXPECT_TRUE(Window.Get("lbl_VideoPathFault").isVisible());
    EXPECT_FALSE(Window.Get("lbl_VideosPathCount").isVisible());
    EXPECT_TRUE(Window.Get("btn_RunVantorra").isVisible());
}

TEST_F(Window_Run, HaltInTheMiddleOfAFileStopsMkvmerge)
{
    Prepare();
    Place_Slow_Video();
    QString caption;
    Run_And([&] {
        Click_On(Window.Get("btn_Halt"));
        EXPECT_EQ(Window.Prog().Form.btn_Halt.Caption, u"HALT") << "that one ended a double click on Run";
        Click_On(Window.Get("btn_Halt"));
        caption = Window.Prog().Form.btn_Halt.Caption;
    });
    EXPECT_EQ(caption, u"HALTING");
    EXPECT_EQ(Window.Get<QLabel>("lbl_ProgressFinished").text(), u"INTERRUPTED");
    EXPECT_EQ(Window.Get<Progress_Box>("pic_Progress").Look(), Progress_Look::Interrupted);
    EXPECT_EQ(Window.Get<QAbstractButton>("btn_Halt").text(), u"HALT");
    EXPECT_EQ(Children_Left(), 0);
    EXPECT_FALSE(QFile::exists(Window.Files.Path(u"target/slow.mkv"_s)));
}

TEST_F(Window_Run, WhileAChildIsSilentTheWindowRefusesToCloseTakesNoDropAndObeysEscape)
{
    Prepare();
    Place_Slow_Video();
    bool refused = false;
    bool dropped = true;
    QElapsedTimer since_escape;
    Run_And([&] {
        Window.Form().close();
        Press(Window.Form(), Qt::Key_F4, Qt::AltModifier);
        refused = !Window.Form().Unloaded() && Window.Form().isVisible();
        dropped = Drop_On(Window.Get("pic_VideosPath"), {Window.Files.Path(u"target"_s)});
        // Neither Alt nor a click on a menu that is off takes Escape away.
        QTest::keyClick(Window.Form().windowHandle(), Qt::Key_Alt, Qt::AltModifier);
        Click_On(Window.Get("menubar"));
        since_escape.start();
        Press(Window.Form(), Qt::Key_Escape);
    });
    EXPECT_TRUE(refused);
    EXPECT_FALSE(dropped);
    EXPECT_EQ(Window.Get<QLabel>("ulbl_VideosPath").text(), Window.Files.Path(u"videos/"_s));
    EXPECT_EQ(Window.Get<QLabel>("lbl_ProgressFinished").text(), u"INTERRUPTED");
    EXPECT_LT(since_escape.elapsed(), 10'000) << "the child would have slept for thirty seconds";
}

TEST_F(Window_Run, AnErrorInTheMiddleOfARunReapsTheChildAndEndsTheProgram)
{
    Prepare();
    Place_Slow_Video();
    Run_And([&] { Window.Desk->Guard.Call([] { throw std::runtime_error("no memory for this"); }); });
    EXPECT_TRUE(Window.Desk->Guard.Ended());
    ASSERT_EQ(Window.Person.Boxes.size(), 1u);
    EXPECT_EQ(Children_Left(), 0);
}
