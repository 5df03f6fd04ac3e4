#include "common/stand_in_tool.h"
#include "forms/test_window.h"
#include "life/start_up.h"
#include "settings/settings_store.h"
#include "support/run_time_error.h"

#include <QApplication>
#include <QCheckBox>
#include <QScreen>
#include <climits>

TEST(Window_Life, StartChangeQuitStartAgain)
{
    Test_Window window;
    ASSERT_TRUE(window.Start());
    Click_On(window.Get("chk_RemoveAllTags"));
    window.Choose("mnu_Verbosity3");
    EXPECT_EQ(window.Get<QMenu>("mnu_VerbosityStatus").title(), u"Log Verbosity 3 - Include Active Checkboxes");
    EXPECT_EQ(window.Get<QMenu>("mnu_Process_Log").title(), u"&Process_Log v3");
    window.Set_Folders();
    window.Form().setGeometry(30, 40, 700, 600);
    QCoreApplication::processEvents();
    window.Quit();

    ASSERT_TRUE(window.Start());
    EXPECT_TRUE(window.Get<QCheckBox>("chk_RemoveAllTags").isChecked());
    EXPECT_EQ(window.Get<QLabel>("ulbl_VideosPath").text(), window.Files.Path(u"videos/"_s));
    EXPECT_EQ(window.Get<QMenu>("mnu_VerbosityStatus").title(), u"Log Verbosity 3 - Include All Active Checkboxes");
    EXPECT_EQ(window.Form().geometry().topLeft(), QPoint(30, 40));
    EXPECT_TRUE(window.Get("btn_RunVantorra").isEnabled());

    EXPECT_FALSE(window.Get("ulbl_Title1").isVisible());
    window.Quit();
    const QString settings = u"app/Vantorra.ini"_s;
    window.Files.Write(settings, window.Files.Read(settings).replace("Careful Batch", "Unknown"));
    for (const bool told : {true, false}) {
        ASSERT_TRUE(window.Start());
        EXPECT_EQ(window.Get<QLabel>("ulbl_Title1").text().contains(u"Careful Batch"), told);
        window.Quit();
    }
}

TEST(Window_Life, WhileTheToolsAreTriedTheWindowIsSeenAndTakesNoInput)
{
    Test_Window window;
    Write_Stand_In(window.Files, u"app/ffprobe"_s, "sleep 0.4\necho 'ffprobe version 5'\n");
    int seen = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (!window.Desk || !window.Form().isVisible() || window.Prog().Form.Options_Ready || ++seen > 1)
            return;
        EXPECT_FALSE(window.Get("btn_ViewVidInfo").isEnabled()) << "nothing that identifies is known yet";
        Click_On(window.Get("chk_StripChaps"));
        Press(window.Form(), Qt::Key_F4, Qt::AltModifier);
        window.Form().close();
    });
    look.start(5);
    ASSERT_TRUE(window.Start());
    EXPECT_GT(seen, 0);
    EXPECT_FALSE(window.Form().Unloaded());
    EXPECT_EQ(window.Prog().Options.chk_StripChaps.Value, 0);
    EXPECT_FALSE(window.Get<QCheckBox>("chk_StripChaps").isChecked());
    Click_On(window.Get("chk_StripChaps"));
    EXPECT_EQ(window.Prog().Options.chk_StripChaps.Value, 1);
}

TEST(Window_Life, EachWayOutSavesAndTheCloseBoxIsAltF4)
{
    const std::function<void(Test_Window&)> ways[] = {
        [](Test_Window& w) { w.Choose("mnu_Quit"); },
        [](Test_Window& w) { Click_On(w.Get("img_Quit")); },
        [](Test_Window& w) { Press(w.Form(), Qt::Key_F4, Qt::AltModifier); },
        [](Test_Window& w) { w.Form().close(); },
    };
    for (const auto& leave : ways) {
        Test_Window window;
        ASSERT_TRUE(window.Start());
        EXPECT_FALSE(window.Form().windowFlags().testFlag(Qt::WindowCloseButtonHint));
        Click_On(window.Get("chk_StripChaps"));
        leave(window);
        EXPECT_TRUE(window.Form().Unloaded());
        EXPECT_FALSE(window.Form().isVisible());
        EXPECT_TRUE(window.Files.Read(u"app/Vantorra.ini"_s).contains("Strip Existing Chapters=On"));
    }
}

TEST(Window_Life, ASecondWindowOnTheSameFolderSaysThatOneIsOpenAndBringsItBack)
{
    Test_Window first;
    ASSERT_TRUE(first.Start());
    first.Form().showMinimized();
    Desktop second;
    second.Prog.Settings.App_Folder = first.Files.Path(u"app/"_s);
    Instance_Lock lock;
    EXPECT_FALSE(second.Start(&lock));
    ASSERT_EQ(first.Person.Boxes.size(), 1U);
    EXPECT_EQ(first.Person.Boxes[0].Title, u"Vantorra is open already");
    EXPECT_TRUE(Wait_Until([&] { return !first.Form().isMinimized(); }));
    EXPECT_FALSE(second.Form.isVisible());
}

TEST(Window_Life, APlaceThatIsNowhereComesBackOntoTheScreen)
{
    const QList<int> places[] = {{90000, 90000, 800, 600},
                                 {0, 0, 0, 0},
                                 {100, 100, 90000, 90000},
                                 {INT_MAX, INT_MIN, INT_MAX, INT_MAX},
                                 {INT_MIN, INT_MAX, INT_MIN, 600}};
    for (const auto& place : places) {
        Test_Window window;
        ASSERT_TRUE(window.Start());
        window.Quit();
        QByteArray ini = window.Files.Read(u"app/Vantorra.ini"_s);
        const char* const keys[] = {"Left=", "Top=", "Width=", "Height="};
        for (int i = 0; i < 4; ++i) {
            const auto at = ini.indexOf(keys[i]);
            ini.replace(at, ini.indexOf('\n', at) - at, keys[i] + QByteArray::number(place[i]));
        }
        window.Files.Write(u"app/Vantorra.ini"_s, ini);

        window.Desk = std::make_unique<Desktop>();
        window.Prog().Settings.App_Folder = window.Files.Path(u"app/"_s);
        window.Desk->Guard.Call([&] { Load_Settings(window.Prog()); });
        window.Form().Show_First();
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        const QRect shown = window.Form().geometry();
        EXPECT_TRUE(area.contains(shown)) << place[0] << " became " << shown.left() << " " << shown.width();
        EXPECT_GE(window.Form().width(), window.Form().minimumSizeHint().width());
    }
}

TEST(Window_Life, AfterAStartWithoutAWindowTheFirstOneIsCentredAtItsOwnSize)
{
    Test_Window window;
    Load_Settings(window.Files.Prog);
    ASSERT_TRUE(QFile::exists(window.Files.Path(u"app/Vantorra.ini"_s)));
    ASSERT_TRUE(window.Start());
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(window.Form().size(), window.Form().sizeHint());
    EXPECT_NEAR(window.Form().geometry().center().x(), area.center().x(), 1);
    EXPECT_NEAR(window.Form().geometry().center().y(), area.center().y(), 1);

    const QPoint centre = window.Form().geometry().center();
    for (const QPoint& corner : {QPoint(0, 0), QPoint(window.Form().x(), 0)}) {
        window.Form().move(corner);
        QCoreApplication::processEvents();
        Press(window.Form(), Qt::Key_F12);
        EXPECT_EQ(window.Form().geometry().center(), centre);
    }
}

TEST(Window_Life, AnErrorThatCantBeGoneOnFromIsLoggedToldOnceAndEndsTheProgram)
{
    Test_Window window;
    ASSERT_TRUE(window.Start());
    window.Prog().Logs.Log_Results.AppendLine(u"        -- what was done so far"_s);
    const QByteArray settings = window.Files.Read(u"app/Vantorra.ini"_s);
    bool went_on = false;
    window.Desk->Guard.Call([&] {
        Raise_Type_Mismatch(u"Reading the delay of"_s, u"a.opt"_s, u"12x"_s);
        went_on = true;
    });
    EXPECT_FALSE(went_on);
    ASSERT_EQ(window.Person.Boxes.size(), 1u);
    EXPECT_TRUE(window.Person.Boxes[0].Text.startsWith(u"Run-time error '13': Type mismatch"));
    EXPECT_TRUE(window.Person.Boxes[0].Text.contains(u"a.opt") && window.Person.Boxes[0].Text.contains(u"12x"));
    EXPECT_TRUE(window.Files.Read(u"app/Vantorra_Process.log"_s).contains("what was done so far"));
    EXPECT_TRUE(window.Desk->Guard.Ended());
    EXPECT_THROW(window.Prog().Person.Pump_Events(), End_Of_Program);
    window.Desk->Guard.Call([&] { went_on = true; });
    EXPECT_FALSE(went_on);
    EXPECT_EQ(window.Files.Read(u"app/Vantorra.ini"_s), settings);
}

TEST(Window_Life, TheAboutBoxCountsDownAndAClickClosesIt)
{
    Test_Window window;
    ASSERT_TRUE(window.Start());
    window.Choose("mnu_AboutProgram");
    auto* about = window.Form().findChild<QWidget*>(u"frm_Splash"_s);
    ASSERT_TRUE(about && about->isVisible());
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ(about->findChild<QLabel*>(u"lbl_Version"_s)->text(), QStringLiteral("Version " VANTORRA_VERSION));
    EXPECT_TRUE(Wait_Until([&] { return about->findChild<QLabel*>(u"lbl_Countdown"_s)->text() == u"7"; }));
    Click_On(*about);
    EXPECT_FALSE(about->isVisible());
}
