#include "common/media.h"
#include "common/stand_in_tool.h"
#include "forms/drop_text.h"
#include "forms/form_test.h"
#include "forms/line_wrapper.h"
#include "forms/looks.h"
#include "forms/text_lines_view.h"
#include "tools/tool_discovery.h"

#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>
#include <QTableView>

namespace {

struct Log_Form : Form_Test
{
    void Start()
    {
        ASSERT_TRUE(Window.Start());
        Window.Form().setGeometry(200, 150, 1300, 800);
        QCoreApplication::processEvents();
    }

    void Write_Log(int lines) const
    {
        QByteArray log;
        for (int i = 0; i < lines; ++i)
            log += "-- line " + QByteArray::number(i) + "\r\n";
        Window.Files.Write(u"app/Vantorra_Process.log"_s, log);
    }

    void Look(const std::function<void(QWidget&)>& person) { Open("mnu_ViewLog", "frm_ProcessLog", person); }

    static Text_Lines_View& Lines(QWidget& form) { return In<Text_Lines_View>(form, "lst_ProcessLog"); }
};

struct Info_Form : Form_Test
{
    void Start()
    {
        ASSERT_TRUE(Window.Start());
        Window.Set_Folders();
        ASSERT_TRUE(Window.Get("btn_ViewVidInfo").isEnabled());
    }

    void Look(const std::function<void(QWidget&)>& person) { Open("btn_ViewVidInfo", "frm_ViewVFI", person); }

    static void Pick(QWidget& form, int row)
    {
        auto& list = In<QListView>(form, "lst_VideoFiles");
        Click_On(*list.viewport(), list.visualRect(list.model()->index(row, 0)).center(), Qt::LeftButton, {});
    }

    static QString Text(QWidget& form) { return In<Drop_Text>(form, "txt_VideoInfo").toPlainText(); }

    static bool Drop(QWidget& form, const QString& path)
    {
        return Drop_On(*In<Drop_Text>(form, "txt_VideoInfo").viewport(), {path});
    }
};

} // namespace

TEST_F(Log_Form, FiveHundredLinesOrAllAndTheModeIsKeptWhileTheProgramRuns)
{
    Start();
    Look([&](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), u"Vantorra Process Log");
        EXPECT_EQ(In<QLabel>(form, "lbl_LogLines").text(), u"0 Lines");
        EXPECT_FALSE(In(form, "btn_LoadFullLog").isEnabled()) << "no log";
        Press(form, Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
    });
    Write_Log(1000);
    Look([&](QWidget& form) {
        EXPECT_EQ(Lines(form).model()->rowCount(), 500);
        EXPECT_EQ(Lines(form).currentIndex().row(), 0);
        EXPECT_EQ(Lines(form).verticalScrollBar()->value(), 0);
        Push(form, "btn_LoadFullLog");
        EXPECT_EQ(In<QLabel>(form, "lbl_LogLines").text(), u"1000 Lines");
        EXPECT_EQ(In(form, "btn_LoadFullLog").text().remove(u'&'), u"Load 500 Lines");
        EXPECT_FALSE(In<QLabel>(form, "lbl_LoadLog").isVisible());
        EXPECT_TRUE(In(form, "btn_Done").hasFocus());
        Lines(form).setFocus();
        Press(form, Qt::Key_End);
        EXPECT_EQ(Lines(form).currentIndex().data().toString(), u"-- line 999");
        Press(form, Qt::Key_Up, Qt::ShiftModifier);
        Press(form, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), u"-- line 998\n-- line 999");
        Press(form, Qt::Key_Escape);
        EXPECT_FALSE(form.isVisible());
    });
    Look([&](QWidget& form) {
        EXPECT_EQ(Lines(form).model()->rowCount(), 1000);
        Push(form, "btn_LoadFullLog");
        EXPECT_EQ(Lines(form).model()->rowCount(), 500);
        EXPECT_EQ(In(form, "btn_LoadFullLog").text().remove(u'&'), u"Load Full Log ");
    });
    Window.Choose("mnu_ClearLog");
    Look([&](QWidget& form) { EXPECT_EQ(Lines(form).model()->rowCount(), 0); });
}

TEST_F(Log_Form, TheLongestLineCanBeScrolledToItsEndAtEverySize)
{
    Start();
    Window.Files.Write(u"app/Vantorra_Process.log"_s, "short\r\n\r\n" + QByteArray(400, 'w') + "\r\n" +
                                                          QByteArray("\xE5\xAD\x97").repeated(250) + "\r\n");
    Look([&](QWidget& form) {
        EXPECT_EQ(Lines(form).model()->rowCount(), 4);
        for (const char* step : {"img_FontReset", "img_FontInc", "img_FontInc", "img_FontDec"}) {
            Push(form, step);
            QCoreApplication::processEvents();
            const QFontMetrics metrics(Lines(form).font());
            const int widest = std::max(metrics.horizontalAdvance(QString(400, u'w')),
                                        metrics.horizontalAdvance(QString(250, u'\u5B57')));
            const int reach = Lines(form).viewport()->width() + Lines(form).horizontalScrollBar()->maximum();
            EXPECT_GE(reach, widest) << step;
            EXPECT_LE(reach, widest + 40) << step;
        }
        EXPECT_EQ(Window.Prog().Settings.ProcessLog_Font_Size, QFontInfo(Window.Form().font()).pointSize() + 1);
    });
}

TEST_F(Log_Form, ATextAFaultAndAnEntryAreReachedByKeys)
{
    Start();
    const QByteArray entry = "This entry generated on - Nov/21/2026 08:15:00 AM local time by V\r\n" +
                             QByteArray("-- a Film \r\n").repeated(60) + "*** Not processed: it is odd\r\n";
    Window.Files.Write(u"app/Vantorra_Process.log"_s, entry.repeated(2) + QByteArray(400, 'x') + " needle");
    Look([&](QWidget& form) {
        const auto row = [&form] { return Lines(form).currentIndex().row(); };
        const auto place = [&form] { return In<QLabel>(form, "lbl_Place").text(); };
        auto& field = In<QLineEdit>(form, "txt_Find");
        EXPECT_FALSE(field.isVisible());
        ASSERT_TRUE(Wait_Until([&form] {
            return form.isActiveWindow() && QGuiApplication::focusWindow() == form.windowHandle();
        })) << "keys of a window work in the active one";
        Press(form, Qt::Key_F8);
        EXPECT_EQ(row(), 61);
        EXPECT_EQ(place(), u"Fault 1 of 2");
        Press(form, Qt::Key_F8, Qt::ShiftModifier);
        EXPECT_EQ(row(), 123);
        In<QListView>(form, "lst_Entries").setFocus();
        Press(form, Qt::Key_Up);
        EXPECT_EQ(row(), 0);
        EXPECT_EQ(In<QListView>(form, "lst_Entries").currentIndex().data().toString(), u"Nov/21/2026 08:15:00 AM");

        Press(form, Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(field.hasFocus());
        QTest::keyClicks(&field, u"needle"_s);
        EXPECT_EQ(row(), 124);
        EXPECT_EQ(place(), u"Found 1 of 1");
        EXPECT_GT(Lines(form).horizontalScrollBar()->value(), 0) << "it stands far to the right";
        field.selectAll();
        QTest::keyClicks(&field, u"fILM"_s);
        EXPECT_EQ(row(), 1) << "round the end";
        Press(form, Qt::Key_Return);
        Press(form, Qt::Key_F3);
        EXPECT_EQ(place(), u"Found 3 of 120");
        Press(form, Qt::Key_Return, Qt::ShiftModifier);
        Press(form, Qt::Key_F3, Qt::ShiftModifier);
        EXPECT_EQ(row(), 1);
        Press(form, Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible() && !field.isVisible() && Lines(form).hasFocus());

        Lines(form).setCurrentIndex(Lines(form).model()->index(124, 0));
        const auto height = [&form] { return Lines(form).visualRect(Lines(form).currentIndex()).height(); };
        const int one = height();
        Push(form, "chk_WrapLines");
        QCoreApplication::processEvents();
        EXPECT_GT(height(), 2 * one);
        EXPECT_EQ(Lines(form).horizontalScrollBar()->maximum(), 0);
        form.grab();
        Push(form, "chk_WrapLines");
        QCoreApplication::processEvents();
        EXPECT_EQ(height(), one);
        form.close();
    });
}

TEST(Line_Wrapping, PiecesFitAndAreTheLine)
{
    const QFont font = Fixed_Font();
    const QFontMetricsF metrics(font);
    const int width = static_cast<int>(metrics.horizontalAdvance(QString(20, u'x'))) + 1;
    const Line_Wrapper wrapper(font, width);
    for (const QString& line : {u""_s, QString(20, u'x'), QString(61, u'x'), u"    one two three four five six"_s,
                                QString(99, u' '), u"  "_s + QString(50, u'\u5B57'), QString(30, u' ') + u"far in"_s}) {
        const QStringList pieces = wrapper.Pieces(line);
        EXPECT_EQ(pieces.join(QString()), line);
        EXPECT_EQ(wrapper.Count(line), pieces.size());
        for (const QString& piece : pieces)
            EXPECT_LE(metrics.horizontalAdvance(piece.trimmed()), width) << piece.toStdString();
    }
    EXPECT_EQ(wrapper.Pieces(u"  one two three four five"_s), (QStringList{u"  one two three four "_s, u"five"_s}));
}

TEST(Looks, WhatIsColouredReadsOnEveryGround)
{
    for (const auto& [window, ground, text] :
         {std::tuple(0xffefefef, 0xffffffff, 0xff232629), std::tuple(0xff31363b, 0xff232629, 0xffeff0f1)}) {
        QPalette palette;
        palette.setColor(QPalette::Window, QColor::fromRgb(window));
        palette.setColor(QPalette::WindowText, QColor::fromRgb(text));
        for (const auto& colour : {Fault_Colour, Mark_Colour, Head_Colour})
            for (const QRgb below : {window, ground})
                EXPECT_GE(Contrast(colour(palette), QColor::fromRgb(below)), 4.5) << std::hex << window << " " << below;
    }
}

TEST_F(Info_Form, BothViewersCloseByTheSameKeysAndArePlacedByF12)
{
    struct Case
    {
        const char* Name;
        const char* Form;
        std::vector<const char*> Where; ///< has the focus when the key comes
    };

    const Case cases[] = {
        {"mnu_ViewLog", "frm_ProcessLog", {"btn_Done", "lst_ProcessLog", "btn_LoadFullLog", "img_FontInc"}},
        {"mnu_ViewVidInfo", "frm_ViewVFI", {"btn_Done", "lst_VideoFiles", "txt_VideoInfo", "btn_SaveToFile"}},
    };
    Start();
    Window.Form().setGeometry(200, 150, 1300, 800);
    Window.Files.Write(u"app/Vantorra_Process.log"_s, QByteArray("line\r\n").repeated(600));
    Place(Window.Files, Short_Video(), u"videos/film.mkv"_s);
    for (const Case& one : cases) {
        SCOPED_TRACE(one.Form);
        for (const char* where : one.Where)
            for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter})
                Open(one.Name, one.Form, [&](QWidget& form) {
                    if (form.objectName() == u"frm_ViewVFI")
                        Pick(form, 0); // its buttons are enabled
                    In<QWidget>(form, where).setFocus();
                    Press(form, key);
                    EXPECT_FALSE(form.isVisible()) << where << key;
                });
        Open(one.Name, one.Form, [&](QWidget& form) {
            const QPoint centre = Window.Form().geometry().center();
            form.setGeometry(40, 50, 760, 430);
            QCoreApplication::processEvents();
            Press(form, Qt::Key_F12);
            EXPECT_LE((form.geometry().center() - centre).manhattanLength(), 2);
            EXPECT_EQ(form.size(), QSize(760, 430));
            Press(form, Qt::Key_F12, Qt::ShiftModifier);
            EXPECT_EQ(form.geometry(), Window.Form().geometry());
            form.setGeometry(40, 50, 760, 430);
            QCoreApplication::processEvents();
            for (int i = 0; i < 30; ++i)
                Push(form, "img_FontInc");
            EXPECT_EQ(In<QLabel>(form, "lbl_FontSize").text(), u"Current Font Size 35");
            for (int i = 0; i < 40; ++i)
                Push(form, "img_FontDec");
            EXPECT_EQ(In<QLabel>(form, "lbl_FontSize").text(), u"Current Font Size 4");
            Push(form, "img_FontReset");
            EXPECT_EQ(In<QLabel>(form, "lbl_FontSize").text(),
                      u"Current Font Size %1"_s.arg(QFontInfo(Window.Form().font()).pointSize()));
            form.close();
        });
        Open(one.Name, one.Form, [&](QWidget& form) { EXPECT_EQ(form.geometry(), QRect(40, 50, 760, 430)); });
        // Maximised, either form counts as it stands there.
        Window.Form().showMaximized();
        QCoreApplication::processEvents();
        Open(one.Name, one.Form, [&](QWidget& form) {
            form.showMaximized();
            QCoreApplication::processEvents();
            Press(form, Qt::Key_F12);
            EXPECT_FALSE(form.isMaximized());
            EXPECT_EQ(form.size(), QSize(760, 430));
            EXPECT_LE((form.geometry().center() - Window.Form().geometry().center()).manhattanLength(), 2);
            Press(form, Qt::Key_F12, Qt::ShiftModifier);
            EXPECT_EQ(form.geometry(), Window.Form().geometry());
            form.close();
        });
        Window.Form().showNormal();
        QCoreApplication::processEvents();
    }
}

TEST_F(Info_Form, PickDropSwitchAndSaveShowWhatMkvmergeSays)
{
    Start();
    Place(Window.Files, Rich_Video(), u"videos/film.part1.mkv"_s);
    const QString notes = Window.Files.Write(u"notes.txt"_s, "no video");
    Look([&](QWidget& form) {
        EXPECT_EQ(Text(form), u"");
        EXPECT_FALSE(In(form, "btn_SaveToFile").isEnabled());
        EXPECT_FALSE(In(form, "btn_ShowCodecData").isEnabled());
        EXPECT_EQ(form.focusWidget(), &In(form, "btn_Done"));
        EXPECT_TRUE(Is_Fixed_Width(In<QWidget>(form, "txt_VideoInfo").font()));
        Pick(form, 0);
        const QString info = Text(form);
        EXPECT_TRUE(info.contains(u"film.part1.mkv"_s) && info.contains(u"Track ID 0"_s)) << info.toStdString();
        EXPECT_FALSE(In<QWidget>(form, "shp_VideoInfo").isVisible());
        EXPECT_TRUE(In(form, "btn_SaveToFile").isEnabled());

        Push(form, "btn_ShowCodecData");
        EXPECT_EQ(In(form, "btn_ShowCodecData").text().remove(u'&'), u"Hide Codec Private Data");
        EXPECT_NE(Text(form), info);
        Push(form, "btn_ShowCodecData");
        EXPECT_EQ(Text(form), info);

        Push(form, "btn_SaveToFile");
        QString saved = QString::fromUtf8(Window.Files.Read(u"videos/film.part1 Video Info.txt"_s));
        EXPECT_TRUE(saved.contains(u"     \r\n"_s) && saved.endsWith(u"     "_s));
        EXPECT_EQ(saved.replace(u"\r\n"_s, u"\n"_s), info);

        EXPECT_TRUE(Drop(form, notes)) << "whatever its extension";
        EXPECT_TRUE(In<QWidget>(form, "shp_VideoInfo").isVisible());
        EXPECT_EQ(In<QLabel>(form, "lbl_FileName").toolTip(), u"<qt>"_s + notes);
        EXPECT_FALSE(In<QListView>(form, "lst_VideoFiles").selectionModel()->hasSelection());
        EXPECT_TRUE(Text(form).contains(u"notes.txt"_s));
        In<QListView>(form, "lst_VideoFiles").setFocus();
        EXPECT_TRUE(Text(form).contains(u"notes.txt"_s)) << "the focus alone picks nothing";
        Pick(form, 0);
        EXPECT_EQ(Text(form), info);
        EXPECT_FALSE(In<QWidget>(form, "shp_VideoInfo").isVisible());
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End}) {
            EXPECT_TRUE(Drop(form, notes));
            In(form, "btn_Done").setFocus();
            In<QListView>(form, "lst_VideoFiles").setFocus();
            Press(form, key);
            EXPECT_EQ(Text(form), info) << key << " picks the only file";
        }
        Push(form, "img_FontInc");
        EXPECT_EQ(In<QWidget>(form, "txt_VideoInfo").font().pointSize(), 11);
        EXPECT_EQ(In<QWidget>(form, "lst_VideoFiles").font().pointSize(), 11);
        Press(form, Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
    });
    Place(Window.Files, Short_Video(), u"videos/another.mkv"_s);
    Look([&](QWidget& form) {
        EXPECT_EQ(In<QListView>(form, "lst_VideoFiles").model()->rowCount(), 2);
        EXPECT_EQ(Text(form), u"");
        EXPECT_FALSE(In(form, "btn_ShowCodecData").isEnabled());
    });
    EXPECT_TRUE(Window.Person.Boxes.empty());
    EXPECT_EQ(Children_Left(), 0);
}

TEST_F(Info_Form, SeveralArePickedAndTheirTracksComparedWhileTheFormStaysAlive)
{
    Start();
    Place(Window.Files, Rich_Video(), u"videos/a.mkv"_s);
    for (const char* name : {"videos/b.mkv", "videos/c.mkv"})
        Place(Window.Files, Short_Video(), QLatin1StringView(name));
    Look([&](QWidget& form) {
        const auto told = [&form] { return In<QLabel>(form, "lbl_Told").text(); };
        auto& table = In<QTableView>(form, "tbl_Tracks");
        Pick(form, 0);
        const QString text = Text(form);
        In<QListView>(form, "lst_VideoFiles").setFocus();
        Press(form, Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(Text(form), text) << "one of them";
        EXPECT_EQ(table.model()->rowCount(), 0) << "no tool is asked behind the text";
        Press(form, Qt::Key_R, Qt::AltModifier);
        ASSERT_TRUE(Wait_Until([&] { return told().startsWith(u"3 videos; "_s); })) << told().toStdString();
        EXPECT_TRUE(told().contains(u"a.mkv"_s)) << told().toStdString();
        const int rows = table.model()->rowCount();
        Press(form, Qt::Key_F8);
        EXPECT_EQ(table.currentIndex().siblingAtColumn(0).data().toString(), u"a.mkv");
        Push(form, "btn_SaveToFile");
        EXPECT_EQ(told(), u"Saved as "_s + Window.Files.Path(u"videos/a Video Info.txt"_s));
        Pick(form, 1);
        ASSERT_TRUE(Wait_Until([&] { return table.model()->rowCount() < rows; }));
        EXPECT_TRUE(table.isColumnHidden(0)) << "one video only";
        EXPECT_EQ(told(), QString());

        // A tool that hangs holds nothing up.
        Window.Prog().Tools.FFProbe_Path = Write_Stand_In(Window.Files, u"slow/ffprobe"_s, "exec sleep 30\n");
        QTimer::singleShot(200, &form, [&] { Pick(form, 1); });
        // A press that comes just as a tool is started may go nowhere.
        QTimer leave;
        QObject::connect(&leave, &QTimer::timeout, &form, [&] { Press(form, Qt::Key_Escape); });
        leave.start(600);
        Pick(form, 2);
        EXPECT_TRUE(Wait_Until([&] { return !form.isVisible(); }));
    });
    EXPECT_EQ(Children_Left(), 0);
}

TEST_F(Info_Form, NothingElseHappensWhileTheToolIsAsked)
{
    Start();
    Place(Window.Files, Short_Video(), u"videos/film.mkv"_s);
    Window.Prog().Tools.System_MKVMerge_Path =
        Write_Stand_In(Window.Files, u"slow/mkvmerge"_s,
                       "[ \"$1\" = -V ] && echo \"mkvmerge v74.0.0 ('You Oughta Know') 64-bit\" && exit 0\nsleep 0.4\n"
                       "echo "
                       "'{\"file_name\":\"film.mkv\",\"container\":{\"type\":\"Matroska\",\"recognized\":true,"
                       "\"supported\":true}}'\n");
    Look([&](QWidget& form) {
        bool stayed = false;
        QTimer later;
        later.setSingleShot(true);
        QObject::connect(&later, &QTimer::timeout, &form, [&] {
            Press(form, Qt::Key_Escape);
            Push(form, "btn_Done");
            form.close();
            stayed = form.isVisible();
        });
        later.start(100);
        Pick(form, 0);
        EXPECT_TRUE(stayed);
        EXPECT_TRUE(Text(form).contains(u"Matroska"_s)) << Text(form).toStdString();
        Push(form, "btn_Done");
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(Info_Form, AClickOnTheDisabledButtonTellsWhatItLacks)
{
    Start();
    Window.Choose("mnu_IdentifyWithAnyMkvmerge");
    ASSERT_FALSE(Window.Get("btn_ViewVidInfo").isEnabled());
    Click_On(Window.Get("btn_ViewVidInfo"));
    EXPECT_TRUE(Window.Person.Forms.isEmpty());
    EXPECT_EQ(Window.Person.Boxes.size(), 1u);
    Window.Choose("mnu_IdentifyWithAnyMkvmerge");
    EXPECT_TRUE(Window.Get("btn_ViewVidInfo").isEnabled());
}
