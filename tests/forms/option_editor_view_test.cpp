#include "common/media.h"
#include "forms/form_test.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonObject>
#include <QStyleHints>
#include <QTableView>
#include <QWheelEvent>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The editor of option files over the test's video folder.
struct Editor_Form : Form_Test
{
    QWidget* Form = nullptr;

    void Start()
    {
        ASSERT_TRUE(Window.Start());
        Window.Set_Folders();
    }

    void Edit(const std::function<void()>& person, const char* action = "mnu_AudioOptionsFile")
    {
        Open(action, "frm_OptionsFiles", [&](QWidget& form) {
            Form = &form;
            person();
        });
    }

    QTableView& Files() const { return In<QTableView>(*Form, "lvw_Files"); }

    void Click_Row(int row, Qt::KeyboardModifiers keys = {}) const
    {
        const QRect cell = Files().visualRect(Files().model()->index(row, 0));
        Click_On(*Files().viewport(), cell.center(), Qt::LeftButton, keys);
    }

    /// Goes to a box and types over what it holds.
    void Type(const char* box, const QString& text) const
    {
        auto& widget = In<QWidget>(*Form, box);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty())
            QTest::keyClick(&widget, Qt::Key_Delete);
        for (const QChar letter : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
            QCoreApplication::sendEvent(&widget, &press);
        }
        if (QWidget* proposals = QApplication::activePopupWidget()) {
            proposals->hide();
            Form->activateWindow(); // no window system does it here
        }
        QCoreApplication::processEvents();
    }

    /// Chooses a line of a drop-down by its first letter.
    void Choose_Line(const char* box, Qt::Key letter) const
    {
        auto& list = In<QComboBox>(*Form, box);
        list.setFocus();
        // Letters that follow each other at once are looked for as one word.
        QTest::qWait(QGuiApplication::styleHints()->keyboardInputInterval() + 50);
        QTest::keyClick(&list, letter);
        QCoreApplication::processEvents();
    }

    QStringList Listed() const
    {
        QStringList rows;
        const QAbstractItemModel& model = *Files().model();
        for (int row = 0; row < model.rowCount(); ++row)
            rows += model.index(row, 0).data().toString() + u'|' + model.index(row, 1).data().toString();
        return rows;
    }

    /// What the boxes show: a set one's text in square brackets, a grey one's note.
    QString Boxes() const
    {
        QStringList texts;
        for (const char* name : {"txt_Title", "cmbo_Language", "cmbo_Default", "cmbo_Forced", "txt_Delay"}) {
            auto& widget = In<QWidget>(*Form, name);
            auto* list = qobject_cast<QComboBox*>(&widget);
            auto* line = list ? list->lineEdit() : qobject_cast<QLineEdit*>(&widget);
            const QString text = line ? line->text() : list->currentText();
            const bool grey = widget.font().italic();
            EXPECT_NE(grey, widget.palette().color(QPalette::Base) == Form->palette().color(QPalette::Base));
            EXPECT_TRUE(!grey || text.isEmpty()) << name;
            texts += !grey ? u'[' + text + u']' : line ? line->placeholderText() : list->placeholderText();
        }
        return texts.join(u'/').replace(u"/ /"_s, u"//"_s).replace(u"/ /"_s, u"//"_s);
    }
};

/// What anybody but the file's owner may do, also where the tests run as the one who may do everything.
class Without_Privileges
{
  public:
    Without_Privileges()
    {
        if (was_root_ && ::seteuid(65534) != 0)
            qFatal("nobody can't be taken on");
    }

    ~Without_Privileges()
    {
        if (was_root_ && ::seteuid(0) != 0)
            qFatal("nobody can't be put off");
    }

  private:
    const bool was_root_ = ::geteuid() == 0;
};

} // namespace

TEST_F(Editor_Form, OpensFromEveryMenuItemForItsKindWithTheMainFormNoLongerOnTop)
{
    Start();
    Window.Files.Write(u"videos/a.mp3"_s);
    Window.Files.Write(u"videos/b.srt"_s);
    Window.Choose("mnu_KeepTopmost");
    ASSERT_TRUE(Window.Form().windowFlags() & Qt::WindowStaysOnTopHint);

    struct Case
    {
        const char* Action;
        QString Title;
        QString Row;
    };

    const Case cases[] = {
        {"mnu_AudioOptionsFile", u"Create and Edit Audio Options Files"_s, u"a.mp3|"_s},
        {"mnu_SubtitleOptionsFile", u"Create and Edit Subtitle Options Files"_s, u"b.srt|"_s},
        {"mnu_PopupAudioOptions1", u"Create and Edit Audio Options Files"_s, u"a.mp3|"_s},
        {"mnu_PopupSubsOptions1", u"Create and Edit Subtitle Options Files"_s, u"b.srt|"_s},
    };
    for (const Case& one : cases) {
        if (!Window.Form().findChild<QAction*>(QLatin1StringView(one.Action))) {
            ADD_FAILURE() << one.Action;
            continue;
        }
        Edit(
            [&] {
                EXPECT_EQ(Form->windowTitle(), one.Title);
                EXPECT_EQ(Listed(), QStringList{one.Row});
                EXPECT_EQ(Form->focusWidget(), &In(*Form, "btn_Close"));
                EXPECT_FALSE(Window.Form().windowFlags() & Qt::WindowStaysOnTopHint);
                Press(*Form, Qt::Key_Escape);
                EXPECT_FALSE(Form->isVisible());
            },
            one.Action);
        EXPECT_TRUE(Window.Form().windowFlags() & Qt::WindowStaysOnTopHint);
    }
}

TEST_F(Editor_Form, OneRowTakesAllBoxesAndSeveralTheSetOnes)
{
    Start();
    Window.Files.Write(u"videos/a.mp3"_s);
    Window.Files.Write(u"videos/b.mp3"_s);
    Window.Files.Write(u"videos/b.mp3.opt"_s, "Title=Own\r\nDefault=Yes\r\n");
    Window.Files.Write(u"videos/c.mp3"_s);
    Window.Files.Write(u"videos/c.mp3.opt"_s, "Title=Other\r\nDefault=yes\r\n# note\r\n");
    Window.Files.Write(u"videos/gone.mp3.opt"_s, "Delay=3\r\n");
    Edit([&] {
        EXPECT_EQ(Listed(), (QStringList{u"a.mp3|"_s, u"b.mp3|b.mp3.opt"_s, u"c.mp3|c.mp3.opt"_s, u"|gone.mp3.opt"_s}));
        EXPECT_EQ(Boxes(), u"////");
        Push(*Form, "btn_Apply"); // nothing is selected
        EXPECT_FALSE(QFile::exists(Window.Files.Path(u"videos/a.mp3.opt"_s)));

        Click_Row(0);
        EXPECT_EQ(Boxes(), u"(not set)/(not set)/(not set)/(not set)/(not set)");
        Push(*Form, "btn_Apply");
        EXPECT_EQ(Listed()[0], u"a.mp3|");
        Type("txt_Title", u"Ünïcode \"quoted\" = 1"_s);
        Type("txt_Delay", u"-250"_s);
        Choose_Line("cmbo_Forced", Qt::Key_Y);
        Push(*Form, "btn_Apply");
        EXPECT_EQ(Window.Files.Read(u"videos/a.mp3.opt"_s),
                  "Title=Ünïcode \"quoted\" = 1\r\nForced=yes\r\nDelay=-250\r\n");
        EXPECT_EQ(Listed()[0], u"a.mp3|a.mp3.opt");
        EXPECT_EQ(Boxes(), u"[Ünïcode \"quoted\"]/(not set)/(not set)/[yes]/[-250]")
            << "a title ends at a second \"=\"";
        EXPECT_TRUE(In(*Form, "btn_Close").hasFocus());

        Click_Row(1);
        EXPECT_EQ(Boxes(), u"[Own]/(not set)/[yes]/(not set)/(not set)");
        Click_Row(2, Qt::ControlModifier);
        const QString note = u"(left as it is)"_s;
        EXPECT_EQ(Boxes(), QStringList({note, note, note, note, note}).join(u'/')) << "Yes and yes differ";
        Type("cmbo_Language", u"German (ger)"_s);
        Push(*Form, "btn_Apply");
        EXPECT_EQ(Window.Files.Read(u"videos/b.mp3.opt"_s), "Title=Own\r\nLanguage=German (ger)\r\nDefault=Yes\r\n");
        EXPECT_EQ(Window.Files.Read(u"videos/c.mp3.opt"_s), "Title=Other\r\nLanguage=German (ger)\r\nDefault=yes\r\n");

        Click_Row(3);
        EXPECT_EQ(Boxes(), u"(not set)/(not set)/(not set)/(not set)/[3]");
        const qsizetype trashed = Names_In_Trash().size();
        Type("txt_Delay", {});
        Push(*Form, "btn_Apply");
        EXPECT_EQ(Files().model()->rowCount(), 3) << "an orphan without values goes";
        EXPECT_EQ(Names_In_Trash().size(), trashed + 1);
    });
}

TEST_F(Editor_Form, ABoxIsSetByTheOperatorOnlyAndLeavingItEmptyGreysIt)
{
    Start();
    Window.Files.Write(u"videos/a.mp3"_s);
    Edit([&] {
        Click_Row(0);
        auto& flag = In<QComboBox>(*Form, "cmbo_Default");
        ASSERT_EQ(flag.count(), 3);
        EXPECT_EQ(flag.itemText(0), u"");
        QWheelEvent wheel(QPointF(5, 5), flag.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&flag, &wheel);
        EXPECT_EQ(flag.currentIndex(), -1) << "a wheel that passes by";

        Type("txt_Title", u"x"_s);
        Type("txt_Title", {});
        EXPECT_TRUE(Boxes().startsWith(u"[]/"_s)) << "emptied, but not left";
        Press(*Form, Qt::Key_Return);
        EXPECT_TRUE(In<QWidget>(*Form, "cmbo_Language").hasFocus());
        EXPECT_TRUE(Boxes().startsWith(u"(not set)/"_s));

        // The language box stays set when it is left empty; a flag box without "no" and "yes" doesn't.
        Type("cmbo_Language", u"x"_s);
        Type("cmbo_Language", {});
        Press(*Form, Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_TRUE(flag.hasFocus());
        Choose_Line("cmbo_Default", Qt::Key_N);
        QTest::keyClick(&flag, Qt::Key_Home);
        EXPECT_EQ(Boxes(), u"(not set)/[]/[]/(not set)/(not set)");
        QTest::keyClick(&flag, Qt::Key_Comma, Qt::KeypadModifier);
        QTest::keyClick(&In<QWidget>(*Form, "cmbo_Forced"), Qt::Key_Select);
        EXPECT_TRUE(In<QWidget>(*Form, "txt_Delay").hasFocus());
        QTest::keyClick(&In<QWidget>(*Form, "txt_Delay"), Qt::Key_Return);
        EXPECT_TRUE(In<QWidget>(*Form, "txt_Delay").hasFocus()) << "the last one";
        EXPECT_EQ(Boxes(), u"(not set)/[]/(not set)/(not set)/(not set)");
        EXPECT_TRUE(Form->isVisible());
    });
}

TEST_F(Editor_Form, OneKeyGoesOnFromTheLanguageAlsoWhileProposalsHangBelowIt)
{
    Start();
    Window.Files.Write(u"videos/a.mp3"_s);
    Edit([&] {
        auto& language = In<QComboBox>(*Form, "cmbo_Language");
        const auto type = [&](Qt::Key key, Qt::KeyboardModifiers held = {}) {
            // As a window system does it: an open list gets the keys of the window below it.
            QWidget* open = QApplication::activePopupWidget();
            Press(open ? *open : *Form, key, held);
        };
        Click_Row(0);
        for (const auto& [key, held] :
             {std::pair(Qt::Key_Return, Qt::KeyboardModifiers()), std::pair(Qt::Key_Enter, Qt::KeyboardModifiers()),
              std::pair(Qt::Key_Select, Qt::KeyboardModifiers()),
              std::pair(Qt::Key_Comma, Qt::KeyboardModifiers(Qt::KeypadModifier))}) {
            language.setFocus();
            type(Qt::Key_A, Qt::ControlModifier);
            for (const Qt::Key letter : {Qt::Key_K, Qt::Key_O, Qt::Key_R, Qt::Key_E, Qt::Key_A})
                type(letter);
            ASSERT_TRUE(QApplication::activePopupWidget()) << key;
            type(key, held);
            EXPECT_FALSE(QApplication::activePopupWidget());
            Form->activateWindow(); // no window system does it here
            QCoreApplication::processEvents();
            EXPECT_TRUE(In<QWidget>(*Form, "cmbo_Default").hasFocus()) << key;
            EXPECT_EQ(Boxes(), u"(not set)/[korea]/(not set)/(not set)/(not set)") << "as it was typed";
        }
        language.setFocus();
        type(Qt::Key_A, Qt::ControlModifier);
        for (const Qt::Key key : {Qt::Key_K, Qt::Key_O, Qt::Key_R, Qt::Key_E, Qt::Key_A, Qt::Key_Down, Qt::Key_Return})
            type(key);
        EXPECT_EQ(Boxes(), u"(not set)/[Korean (kor)]/(not set)/(not set)/(not set)") << "the one marked";
        Form->activateWindow();
        QCoreApplication::processEvents();
        // The buttons are pushed by Enter, too.
        In(*Form, "btn_Apply").setFocus();
        Press(*Form, Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(Window.Files.Read(u"videos/a.mp3.opt"_s), "Language=Korean (kor)\r\n");
        EXPECT_TRUE(In(*Form, "btn_Close").hasFocus());
        Press(*Form, Qt::Key_Return);
        EXPECT_FALSE(Form->isVisible());
    });
}

TEST_F(Editor_Form, StickyTextsOutliveTheFormAndComeBackPerKind)
{
    Start();
    Window.Files.Write(u"videos/a.mp3"_s);
    Window.Files.Write(u"videos/a.mp3.opt"_s, "Title=Own\r\nDelay=7\r\n");
    Edit([&] {
        Click_Row(0);
        Push(*Form, "chk_StickyDelay");
        Push(*Form, "chk_StickyForced"); // nothing in its box: off at the close
        Form->setGeometry(120, 90, 700, 610);
        QCoreApplication::processEvents();
        Form->close();
        EXPECT_FALSE(Form->isVisible());
    });
    EXPECT_EQ(Window.Prog().Settings.Audio_Sticky.Delay, u"7");
    EXPECT_EQ(Window.Prog().Settings.Audio_Sticky.Sticky_Forced, 0);
    EXPECT_EQ(Window.Prog().Settings.AudioOptionFiles_Box.Left, 120);
    EXPECT_EQ(Window.Prog().Settings.AudioOptionFiles_Box.Height, 610);
    Edit([&] { EXPECT_EQ(Boxes(), u"////") << "the other kind has its own"; }, "mnu_SubtitleOptionsFile");
    Window.Quit();
    ASSERT_TRUE(Window.Start());
    Edit([&] {
        EXPECT_EQ(Boxes(), u"////[7]");
        EXPECT_TRUE(In<QCheckBox>(*Form, "chk_StickyDelay").isChecked());
        EXPECT_EQ(Form->geometry(), QRect(120, 90, 700, 610));
    });
}

TEST_F(Editor_Form, ASessionOnAThousandFiles)
{
    Start();
    for (int i = 0; i < 1000; ++i) {
        const QString name = u"videos/%1.mp3"_s.arg(i, 4, 10, QChar(u'0'));
        Window.Files.Write(name);
        if (i % 2 == 0)
            Window.Files.Write(name + u".opt"_s, "Title=T" + QByteArray::number(i) + "\r\n");
    }
    Edit([&] {
        ASSERT_EQ(Files().model()->rowCount(), 1000);
        Files().setFocus();
        Press(*Form, Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(Window.Prog().Option_Files.Selected_Count, 1000);
        Type("txt_Delay", u"40"_s);
        Push(*Form, "btn_Apply");
        EXPECT_EQ(Window.Files.Read(u"videos/0998.mp3.opt"_s), "Title=T998\r\nDelay=40\r\n");
        EXPECT_EQ(Window.Files.Read(u"videos/0999.mp3.opt"_s), "Delay=40\r\n");
        EXPECT_EQ(Files().model()->index(999, 1).data().toString(), u"0999.mp3.opt");

        // A head that is clicked turns the table around, not what a row is.
        Click_On(*Files().horizontalHeader()->viewport(), QPoint(20, 8), Qt::LeftButton, {});
        EXPECT_EQ(Files().model()->index(0, 0).data().toString(), u"0999.mp3");
        Click_Row(1);
        EXPECT_EQ(Window.Prog().Option_Files.Selected_Rows.front().FileName, u"0998.mp3");
        EXPECT_EQ(Boxes(), u"[T998]/(not set)/(not set)/(not set)/[40]");
        Type("txt_Title", u"New"_s);
        Push(*Form, "btn_Apply");
        EXPECT_EQ(Window.Files.Read(u"videos/0998.mp3.opt"_s), "Title=New\r\nDelay=40\r\n");
        EXPECT_EQ(Window.Prog().Option_Files.Selected_Rows.front().FileName, u"0998.mp3") << "still selected";

        // A click on the label, or its key, lists the folder anew.
        Window.Files.Write(u"videos/new.mp3"_s);
        In(*Form, "lbl_PickFile").setFocus();
        Press(*Form, Qt::Key_Return);
        EXPECT_EQ(Files().model()->rowCount(), 1001);
        QFile::remove(Window.Files.Path(u"videos/new.mp3"_s));
        Press(*Form, Qt::Key_F5);
        EXPECT_EQ(Files().model()->rowCount(), 1000);
    });
}

TEST_F(Editor_Form, NamesThatDifferInCaseAreFilesOfTheirOwn)
{
    Start();
    for (const char* name : {"a.mp3", "A.mp3", "a.MP3"})
        Window.Files.Write(u"videos/"_s + QString::fromLatin1(name));
    Window.Files.Write(u"videos/a.mp3.opt"_s, "Delay=1\r\n");
    Window.Files.Write(u"videos/a.mp3.OPT"_s, "Delay=2\r\n");
    Edit([&] {
        EXPECT_EQ(Listed(), (QStringList{u"A.mp3|"_s, u"a.MP3|"_s, u"a.mp3|a.mp3.opt"_s, u"|a.mp3.OPT"_s}));
        Click_Row(3);
        EXPECT_EQ(Boxes(), u"(not set)/(not set)/(not set)/(not set)/[2]");
        Type("txt_Delay", u"3"_s);
        Push(*Form, "btn_Apply");
        Click_Row(0);
        Type("txt_Delay", u"4"_s);
        Push(*Form, "btn_Apply");
        EXPECT_EQ(Window.Files.Read(u"videos/a.mp3.OPT"_s), "Delay=3\r\n");
        EXPECT_EQ(Window.Files.Read(u"videos/A.mp3.opt"_s), "Delay=4\r\n");
        EXPECT_EQ(Window.Files.Read(u"videos/a.mp3.opt"_s), "Delay=1\r\n");
    });
}

TEST_F(Editor_Form, TwentyThousandRowsAreListedSortedAndSelected)
{
    Start();
    constexpr int rows = 20'000;
    for (int i = 0; i < rows; ++i)
        Window.Files.Write(u"videos/%1.mp3"_s.arg(i, 5, 10, QChar(u'0')) + (i % 1000 == 0 ? u".opt"_s : QString()));
    Edit([&] {
        ASSERT_EQ(Files().model()->rowCount(), rows);
        EXPECT_EQ(Listed()[0], u"00001.mp3|");
        EXPECT_EQ(Listed()[rows - 1], u"|19000.mp3.opt");
        // The second head sorts rows without an option file behind the others, in the order of their files.
        QHeaderView& heads = *Files().horizontalHeader();
        Click_On(*heads.viewport(), QPoint(heads.sectionViewportPosition(1) + 20, 8), Qt::LeftButton, {});
        EXPECT_EQ(Listed()[0], u"|00000.mp3.opt");
        EXPECT_EQ(Listed()[20], u"00001.mp3|");
        Files().setFocus();
        Press(*Form, Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(Window.Prog().Option_Files.Selected_Count, rows);
        EXPECT_EQ(Boxes().count(u"(left as it is)"_s), 5);
        Push(*Form, "btn_Apply"); // nothing is set
        EXPECT_FALSE(QFile::exists(Window.Files.Path(u"videos/00001.mp3.opt"_s)));
    });
}

TEST_F(Editor_Form, TextGrowsToThirtyFivePointsAndBack)
{
    Start();
    Edit([&] {
        for (int i = 0; i < 30; ++i)
            Push(*Form, "img_FontInc");
        EXPECT_EQ(In<QLabel>(*Form, "lbl_FontSize").text(), u"Current Font Size 35");
        EXPECT_EQ(Files().font().pointSize(), 35);
        EXPECT_EQ(In<QWidget>(*Form, "txt_Title").font().pointSize(), 35);
        EXPECT_GE(In<QWidget>(*Form, "txt_Title").height(), In<QWidget>(*Form, "txt_Title").fontMetrics().height());
        Push(*Form, "img_FontReset");
        Push(*Form, "img_FontDec");
        EXPECT_EQ(Files().font().pointSize(), 9);
    });
}

TEST_F(Editor_Form, AnOptionFileThatCantBeReadOrWrittenEndsTheProgramWithItsName)
{
    const QString folder = Window.Files.Path(u"videos"_s);
    const QString option_file = Window.Files.Path(u"videos/a.mp3.opt"_s);
    const auto allow = [](const QString& path, QFile::Permissions more) {
        EXPECT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner | more));
    };

    struct Case
    {
        const char* Name;
        std::function<void()> Before; ///< the editor opens
        std::function<void()> Spoil;  ///< while it is open
        QByteArray Kept;
    };

    const Case cases[] = {
        {"the folder is gone", {}, [&] { QDir(folder).removeRecursively(); }, {}},
        {"a folder is in the file's place", [&] { QDir().mkdir(option_file); }, [] {}, {}},
        {"the folder can only be read", [&] { Window.Files.Write(u"videos/a.mp3.opt"_s, "Delay=7\r\n"); },
         [&] { allow(folder, QFile::ReadOther | QFile::ExeOther); }, "Delay=7\r\n"},
        {"the file can't be read", [&] { Window.Files.Write(u"videos/a.mp3.opt"_s, "Delay=7\r\n"); },
         [&] { QFile::setPermissions(option_file, {}); }, "Delay=7\r\n"},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.Name);
        allow(Window.Files.Path(), QFile::WriteOwner | QFile::ReadOther | QFile::ExeOther);
        QDir(folder).removeRecursively();
        Window.Files.Write(u"videos/a.mp3"_s);
        if (one.Before)
            one.Before();
        Window.Person.Boxes.clear();
        Start();
        allow(Window.Files.Path(u"app"_s), QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther);
        QStringList names;
        Edit([&] {
            one.Spoil();
            names = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
            const Without_Privileges nobody;
            Click_Row(0);
            if (!Window.Desk->Guard.Ended()) {
                Type("txt_Title", u"x"_s);
                Push(*Form, "btn_Apply");
            }
        });
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        EXPECT_TRUE(Window.Desk->Guard.Ended());
        ASSERT_EQ(Window.Person.Boxes.size(), 1u);
        const QString told = Window.Person.Boxes[0].Text;
        EXPECT_TRUE(told.startsWith(u"Run-time error"_s) && told.contains(option_file)) << told.toStdString();
        EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), names) << "nothing half-written";
        QFile::setPermissions(option_file, QFile::ReadOwner);
        EXPECT_EQ(Window.Files.Read(u"videos/a.mp3.opt"_s), one.Kept);
    }
}

TEST_F(Editor_Form, AnOptionFileThatTheTrashDoesntTakeStaysAndThatIsTold)
{
    Start();
    const QString name = u"videos/"_s + QString(237, u'n') + u".mp3"_s; // too long to be described in the trash
    Window.Files.Write(name);
    Window.Files.Write(name + u".opt"_s, "Title=Own\r\n");
    Edit([&] {
        Click_Row(0);
        Type("txt_Title", {});
        Push(*Form, "btn_Apply");
        ASSERT_EQ(Window.Person.Boxes.size(), 1u);
        EXPECT_TRUE(Window.Person.Boxes[0].Text.contains(Window.Files.Path(name + u".opt"_s)));
        EXPECT_EQ(Boxes(), u"[Own]/(not set)/(not set)/(not set)/(not set)") << "what the file still says";
        EXPECT_TRUE(Form->isVisible());
    });
    EXPECT_EQ(Window.Files.Read(name + u".opt"_s), "Title=Own\r\n");
    EXPECT_FALSE(Window.Desk->Guard.Ended());
}

TEST_F(Editor_Form, AWholeSeasonIsCaptionedAtOnce)
{
    Start();
    const QString sound = Media_File(u"season.mka"_s, {u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=duration=0.5"_s});
    constexpr int episodes = 12;
    const auto episode = [](const QString& folder, int number) {
        return folder + u"/Harbour - S01E%1"_s.arg(number, 2, 10, QChar(u'0'));
    };
    for (int i = 1; i <= episodes; ++i) {
        const QString name = episode(u"videos"_s, i);
        Place(Window.Files, Short_Video(), name + u".mkv"_s);
        Place(Window.Files, sound, name + u"_c.mka"_s);
        Window.Files.Write(name + u"_c.mka.opt"_s, "Title=Commentary " + QByteArray::number(i) + "\r\n");
        Window.Files.Write(name + u".srt"_s, "1\r\n00:00:00,000 --> 00:00:01,000\r\nHallo\r\n");
        Window.Files.Write(name + u".srt.opt"_s, "Title=Untertitel " + QByteArray::number(i) + "\r\n");
    }
    for (const char* kind : {"mnu_AudioOptionsFile", "mnu_SubtitleOptionsFile"})
        Edit(
            [&] {
                ASSERT_EQ(Files().model()->rowCount(), episodes);
                Click_Row(0);
                Files().scrollToBottom();
                Click_Row(episodes - 1, Qt::ShiftModifier);
                Type("cmbo_Language", u"German (ger)"_s);
                Choose_Line("cmbo_Default", Qt::Key_Y);
                Push(*Form, "btn_Apply");
                Push(*Form, "btn_Close");
            },
            kind);
    EXPECT_EQ(Window.Files.Read(episode(u"videos"_s, 7) + u"_c.mka.opt"_s),
              "Title=Commentary 7\r\nLanguage=German (ger)\r\nDefault=yes\r\n");
    EXPECT_EQ(Window.Files.Read(episode(u"videos"_s, 12) + u".srt.opt"_s),
              "Title=Untertitel 12\r\nLanguage=German (ger)\r\nDefault=yes\r\n");
    for (const auto& [add, use] :
         {std::pair("chk_AddAudio", "chk_UseAudioOpts"), std::pair("chk_AddSubs", "chk_UseSubOpts")}) {
        Click_On(Window.Get(add));
        if (!Window.Get<QCheckBox>(use).isChecked())
            Click_On(Window.Get(use));
    }
    Click_On(Window.Get("btn_RunVantorra"));
    EXPECT_EQ(Window.Get<QLabel>("lbl_ProgressFinished").text(), u"FINISHED");
    for (int i = 1; i <= episodes; ++i) {
        const QString output = Window.Files.Path(episode(u"target"_s, i) + u".mkv"_s);
        QStringList added;
        const QJsonArray tracks = Identify(output)[u"tracks"_s].toArray();
        for (const auto& track : tracks) {
            const QJsonObject known = track[u"properties"_s].toObject();
            if (known[u"language"_s] == u"ger"_s)
                added += known[u"track_name"_s].toString() + u' ' + QString::number(known[u"default_track"_s].toBool());
        }
        // A default claimed by an option file is written as "no" for all added audio; subtitles take it as it stands.
        EXPECT_EQ(added, QStringList({u"Commentary %1 0"_s.arg(i), u"Untertitel %1 1"_s.arg(i)}))
            << output.toStdString();
    }
}
