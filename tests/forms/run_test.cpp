#include "common/media.h"
#include "common/stand_in_tool.h"
#include "forms/progress_box.h"
#include "forms/test_window.h"
#include "rules/video_texts.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QListWidget>

static void Choose_In(const QWidget& question, const QString& words)
{
    for (auto* button : question.findChildren<QAbstractButton*>())
        if (button->text() == words)
            return Click_On(*button);
    ADD_FAILURE() << words.toStdString();
}

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

    /// Three videos, each of which waits in its muxing for a file "go".
    void Place_Waiting_Videos()
    {
        for (const QString& name : {u"1.mkv"_s, u"2.mkv"_s, u"3.mkv"_s})
            Place(Window.Files, Short_Video(), u"videos/"_s + name);
        Window.Prog().Run.Kill_By_Name = false;
        QString& tool = Window.Prog().Tools.System_MKVMerge_Path;
        tool = Write_Stand_In(
            Window.Files, u"waiting/mkvmerge"_s,
            "case \"$*\" in *--output*) echo 'Progress: 10%'; until rm '" + Path_In_Script(Window.Files.Path(u"go"_s)) +
                "' 2>&-; do sleep 0.02; done;; esac\nexec '" + Tool_In_Script(u"mkvmerge"_s) + "' \"$@\"\n");
    }

    /// Runs, lets the run become an hour old, and presses Escape. Returns the states of the videos.
    QString Halt_Late()
    {
        Window.Prog().Now = [] { return QDateTime::currentDateTime(); };
        Run_And([this] {
            Window.Prog().Now = [] { return QDateTime::currentDateTime().addSecs(3600); };
            Press(Window.Form(), Qt::Key_Escape);
        });
        QString states;
        for (const Video_Row& row : Window.Prog().Videos.Rows)
            states += State_Word(row, true) + u'|';
        return states + Window.Get<QLabel>("lbl_ProgressFinished").text();
    }
};

TEST_F(Window_Run, AWholeRunFromTheButtonToFinished)
{
    Prepare();
    Place(Window.Files, Short_Video(), u"videos/one.mkv"_s);
    Place(Window.Files, Short_Video(u"mp4"_s), u"videos/two.mp4"_s);
    const QPoint run_at = Window.Get("btn_RunVantorra").mapToGlobal(QPoint());
    const QString title = Window.Form().windowTitle();
    const auto& summary = Window.Get<QLabel>("lbl_RunSummary");
    bool locked = false;
    bool halt_stood_there = false;
    Run_And([&] {
        EXPECT_TRUE(QRegularExpression(u"^\\d+% - "_s).match(Window.Form().windowTitle()).hasMatch());
        EXPECT_TRUE(summary.text().contains(u" of 2"_s)) << summary.text().toStdString();
        locked = !Window.Get("fram_WholeForm").isEnabled() &&
                 !Window.Get<QMenu>("mnu_File").menuAction()->isEnabled() && !Window.Get("img_Quit").isVisible();
        const QWidget& halt = Window.Get("btn_Halt");
        halt_stood_there = halt.isVisible() && halt.mapToGlobal(QPoint()).x() == run_at.x();
    });
    EXPECT_TRUE(locked && halt_stood_there);
    EXPECT_EQ(Window.Form().windowTitle(), title);
    EXPECT_TRUE(summary.text().startsWith(u"2 done, 0 with warnings, 0 failed, 0 skipped, 0 not run - "_s));
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

TEST_F(Window_Run, InALongCarefulRunAHaltAsksOnceAndHoldsNothingUp)
{
    Prepare();
    Place_Waiting_Videos();
    auto& answer = Window.Person.On_Form[u"frm_HaltQuestion"_s];
    answer = [](QWidget& question) { Choose_In(question, u"&Stop now"_s); };
    EXPECT_EQ(Halt_Late(), u"Not run|Not run|Not run|INTERRUPTED"_s);
    answer = [this](QWidget& question) {
        Press(question, Qt::Key_Escape);
        EXPECT_FALSE(Window.Prog().Run.Halt_Requested);
        Press(Window.Form(), Qt::Key_Escape);
    };
    EXPECT_EQ(Halt_Late(), u"Not run|Not run|Not run|INTERRUPTED"_s);
    EXPECT_EQ(Window.Person.Forms, (QStringList(2, u"frm_HaltQuestion"_s)));

    // The first video is done while the question stands there.
    Window.Person.Left_Open = u"frm_HaltQuestion"_s;
    answer = [this, first = true](QWidget& question) mutable {
        if (std::exchange(first, false))
            Window.Files.Write(u"go"_s);
        if (Window.Prog().Videos.In_Work != 1)
            return;
        Choose_In(question, u"&After this video"_s);
        EXPECT_TRUE(Window.Get<QLabel>("lbl_RunSummary").text().contains(u"stops after this video"_s));
        Window.Files.Write(u"go"_s);
    };
    EXPECT_EQ(Halt_Late(), u"Done|Done|Not run|INTERRUPTED"_s);

    Window.Choose("mnu_CarefulBatch");
    Window.Person.Forms.clear();
    EXPECT_TRUE(Halt_Late().startsWith(u"Not run|"_s));
    EXPECT_TRUE(Window.Person.Forms.isEmpty()) << "a classic run halts as it ever did";
    EXPECT_EQ(Children_Left(), 0);
}

TEST_F(Window_Run, FoldersThatAreDroppedMeanwhileAreRunNext)
{
    Prepare();
    Place_Waiting_Videos();
    const QString season = Place(Window.Files, Short_Video(), u"season/4.mkv"_s).chopped(5);
    for (const QString& name : {u"empty"_s, u"mistake"_s})
        QDir().mkpath(Window.Files.Path(name));
    Window.Person.On_Form[u"frm_QueueQuestion"_s] = [](QWidget& box) { Choose_In(box, u"&Run it next"_s); };
    auto& queue = Window.Get<QListWidget>("lst_Queue");
    bool removed = false;
    QTimer look;
    look.setInterval(20);
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        look.stop(); // a click lets events in
        if (queue.count() == 3) {
            EXPECT_TRUE(queue.isVisible());
            EXPECT_EQ(queue.item(2)->text(), u"Next: "_s + season + u" (1 video)"_s);
            queue.setCurrentRow(0);
            Click_On(Window.Get("btn_Unqueue"));
            removed = true;
        }
        if ((removed && queue.count() == 2) || Window.Prog().Options.Path_Videos == season)
            Window.Files.Write(u"go"_s);
        look.start();
    });
    look.start();
    Run_And([&] {
        EXPECT_TRUE(Drop_On(Window.Form(), {Window.Files.Path(u"target"_s)}));
        EXPECT_EQ(Window.Prog().Form.lbl_Notice.Caption, u"That folder is the target."_s);
        QApplication::clipboard()->setText(Window.Files.Path(u"mistake"_s));
        Press(Window.Form(), Qt::Key_V, Qt::ControlModifier);
        EXPECT_TRUE(Drop_On(Window.Form(), {Window.Files.Path(u"empty"_s), season}));
    });
    EXPECT_TRUE(QFile::exists(Window.Files.Path(u"target/3.mkv"_s)));
    EXPECT_TRUE(QFile::exists(Window.Files.Path(u"target/4.mkv"_s)));
    EXPECT_FALSE(queue.isVisible());
    const QStringList& notes = Window.Prog().Videos.Notes;
    ASSERT_EQ(notes.size(), 2) << notes.join(u' ').toStdString();
    EXPECT_TRUE(notes[0].contains(u"3 done"_s)) << notes[0].toStdString();
    EXPECT_TRUE(notes[1].contains(Window.Files.Path(u"empty/"_s))) << "passed over";
}

TEST_F(Window_Run, AHaltGivesUpWhatWasToBeRunNext)
{
    Prepare();
    Place_Slow_Video();
    Place(Window.Files, Short_Video(), u"season/4.mkv"_s);
    Window.Person.On_Form[u"frm_QueueQuestion"_s] = [](QWidget& box) { Choose_In(box, u"&Run it next"_s); };
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (Window.Prog().Queue.Runs.empty())
            return;
        look.stop();
        Press(Window.Form(), Qt::Key_Escape);
    });
    look.start(20);
    Run_And([&] { Drop_On(Window.Form(), {Window.Files.Path(u"season"_s)}); });
    EXPECT_FALSE(QFile::exists(Window.Files.Path(u"target/4.mkv"_s)));
    EXPECT_EQ(Window.Prog().Videos.Notes, QStringList(u"Not run: "_s + Window.Files.Path(u"season/."_s)));
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
