#include "common/media.h"
#include "common/test_trash.h"
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

    /// Goes to a cell by the mouse.
    void Click_Cell(int row, int column, Qt::KeyboardModifiers keys = {}) const
    {
        Click_On(*Files().viewport(), Files().visualRect(Files().model()->index(row, column)).center(), Qt::LeftButton,
                 keys);
    }

    /// Keys to whatever has the focus.
    void Keys(const QString& text, Qt::Key end = Qt::Key_Return) const
    {
        for (const QChar letter : text)
            QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
        QTest::keyClick(
            QApplication::activePopupWidget() ? QApplication::activePopupWidget() : QApplication::focusWidget(), end);
        QCoreApplication::processEvents();
    }

    QString Cell(int row, int column) const { return Files().model()->index(row, column).data().toString(); }

    /// What the person answers when asked for what isn't applied yet, while `act` is done; true if that was asked.
    bool Asked(const QString& answer, const std::function<void()>& act) const
    {
        bool asked = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            for (QAbstractButton* button : box ? box->buttons() : QList<QAbstractButton*>())
                if (button->text().remove(u'&') == answer) {
                    asked = true;
                    button->click();
                }
        });
        look.start(10);
        act();
        Form->activateWindow(); // no window system does it here
        QCoreApplication::processEvents();
        return asked;
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

} // namespace

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

TEST_F(Editor_Form, AnOptionFileThatCantBeReadOrWrittenIsToldByItsName)
{
    const QString folder = Window.Files.Path(u"videos"_s);
    const QString option_file = Window.Files.Path(u"videos/a.mp3.opt"_s);

    struct Case
    {
        const char* Name;
        std::function<void()> Before; ///< the editor opens
        std::function<void()> Spoil;  ///< while it is open
        bool Ends;                    ///< a file that can't be read leaves nothing to go on with
    };

    const Case cases[] = {
        {"the folder is gone", [] {}, [&] { QDir().rename(folder, folder + u" of old"_s); }, false},
        {"a folder is in the file's place", [&] { QDir().mkdir(option_file); }, [] {}, false},
        {"the file is larger than any", [&] { Window.Files.Write(u"videos/a.mp3.opt"_s, "Delay=7\r\n"); },
         [&] { QFile::resize(option_file, 100 << 20); }, true},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.Name);
        QDir(folder).removeRecursively();
        Window.Files.Write(u"videos/a.mp3"_s);
        one.Before();
        Window.Person.Boxes.clear();
        Start();
        QStringList names;
        Edit([&] {
            one.Spoil();
            names = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
            Click_Row(0);
            if (!Window.Desk->Guard.Ended()) {
                Type("txt_Title", u"x"_s);
                Push(*Form, "btn_Apply");
            }
        });
        EXPECT_EQ(Window.Desk->Guard.Ended(), one.Ends);
        ASSERT_EQ(Window.Person.Boxes.size(), 1u);
        EXPECT_TRUE(Window.Person.Boxes[0].Text.contains(option_file)) << Window.Person.Boxes[0].Text.toStdString();
        EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), names) << "nothing half-written";
    }
}

TEST_F(Editor_Form, AnOptionFileThatTheTrashDoesntTakeStaysAndThatIsTold)
{
    Start();
    const QString name = u"videos/a.mp3"_s;
    Window.Files.Write(name);
    Window.Files.Write(name + u".opt"_s, "Title=Own\r\n");
    Edit([&] {
        Click_Row(0);
        Type("txt_Title", {});
        {
            const Refused_By_Trash refused(Window.Files.Path(name + u".opt"_s));
            Push(*Form, "btn_Apply");
        }
        ASSERT_EQ(Window.Person.Boxes.size(), 1u);
        EXPECT_TRUE(Window.Person.Boxes[0].Text.contains(Window.Files.Path(name + u".opt"_s)));
        EXPECT_EQ(Boxes(), u"[Own]/(not set)/(not set)/(not set)/(not set)") << "what the file still says";
        EXPECT_TRUE(Form->isVisible());
    });
    EXPECT_EQ(Window.Files.Read(name + u".opt"_s), "Title=Own\r\n");
    EXPECT_FALSE(Window.Desk->Guard.Ended());
}

TEST_F(Editor_Form, CellsAreTypedInPlaceFilledDownAppliedAndTakenBack)
{
    Start();
    for (const char16_t* name : {u"videos/1.mp3", u"videos/2.mp3", u"videos/3.mp3"})
        Window.Files.Write(QString::fromUtf16(name));
    const QByteArray old = "Delay=5\r\n";
    Window.Files.Write(u"videos/2.mp3.opt"_s, old);
    Edit([&] {
        constexpr int title = 2;
        constexpr int language = 3;
        constexpr int by_default = 4;
        constexpr int forced = 5;
        constexpr int delay = 6;
        Click_Cell(0, title);
        QTest::mouseDClick(Files().viewport(), Qt::LeftButton, {},
                           Files().visualRect(Files().model()->index(0, title)).center());
        Keys(u"First"_s);
        Keys(u"2nd"_s); // Enter went on, a letter begins
        EXPECT_EQ(Files().currentIndex(), Files().model()->index(2, title));
        Keys({}, Qt::Key_F2);
        Keys(u"gone"_s, Qt::Key_Escape);
        EXPECT_TRUE(Form->isVisible());
        Click_Cell(0, delay);
        Keys(u"-2x5"_s);
        Keys({}, Qt::Key_F2); // left as it is
        Keys({});
        EXPECT_EQ(QStringList({Cell(0, title), Cell(1, title), Cell(2, title), Cell(0, delay), Cell(1, delay)}),
                  QStringList({u"• First"_s, u"• 2nd"_s, {}, u"• -25"_s, u"5"_s}));
        Click_Cell(0, forced);
        Keys(u"y"_s);
        Click_Cell(0, by_default);
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return})
            Keys({}, key);
        Click_Cell(0, language);
        Keys(u"Swedi"_s, Qt::Key_Down); // the proposals
        Keys({});
        EXPECT_EQ(Cell(0, language), u"• Swedish (swe)");
        EXPECT_EQ(Boxes(), u"(not set)/(not set)/(not set)/(not set)/(not set)") << "they show what is applied";

        Click_Cell(0, language);
        Click_Cell(2, language, Qt::ShiftModifier);
        Press(*Form, Qt::Key_D, Qt::ControlModifier);
        EXPECT_EQ(Cell(2, language), u"• Swedish (swe)");
        EXPECT_EQ(In<QLabel>(*Form, "lbl_Marks").text(), u"3 files not applied yet");
        Push(*Form, "btn_ApplyMarks");
        EXPECT_EQ(Window.Files.Read(u"videos/1.mp3.opt"_s),
                  "Title=First\r\nLanguage=Swedish (swe)\r\nDefault=no\r\nForced=yes\r\nDelay=-25\r\n");
        EXPECT_EQ(Window.Files.Read(u"videos/2.mp3.opt"_s), "Title=2nd\r\nLanguage=Swedish (swe)\r\nDelay=5\r\n");
        EXPECT_EQ(Window.Files.Read(u"videos/3.mp3.opt"_s), "Language=Swedish (swe)\r\n");
        EXPECT_EQ(Boxes(), u"(left as it is)/[Swedish (swe)]/(left as it is)/(left as it is)/(left as it is)");
        EXPECT_FALSE(In(*Form, "btn_ApplyMarks").isEnabled());

        Files().setFocus();
        Press(*Form, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Window.Files.Read(u"videos/2.mp3.opt"_s), old);
        EXPECT_FALSE(QFile::exists(Window.Files.Path(u"videos/1.mp3.opt"_s)));
        EXPECT_EQ(Listed(), (QStringList{u"1.mp3|"_s, u"2.mp3|2.mp3.opt"_s, u"3.mp3|"_s}));
        EXPECT_FALSE(In(*Form, "btn_Undo").isEnabled());
    });
}

TEST_F(Editor_Form, WhatIsTypedIntoCellsIsLostByNoWayOut)
{
    Start();
    for (const char16_t* name : {u"videos/1.en.mp3", u"videos/2.de.mp3", u"videos/3.en.mp3"})
        Window.Files.Write(QString::fromUtf16(name));
    Edit([&] {
        EXPECT_TRUE(Wait_Until([&] { return In(*Form, "btn_Close").hasFocus(); }));
        Click_Row(0);
        Press(*Form, Qt::Key_F, Qt::ControlModifier);
        Keys(u"*.EN.mp3"_s, Qt::Key_Down);
        EXPECT_EQ(Listed(), (QStringList{u"1.en.mp3|"_s, u"3.en.mp3|"_s}));
        EXPECT_EQ(In<QLabel>(*Form, "lbl_FilterNote").text(), u"2 of 3 files");
        Click_Cell(1, 2);
        Keys(u"typed"_s, Qt::Key_Right); // not entered yet
        EXPECT_TRUE(Asked(u"Stay"_s, [&] { Push(*Form, "btn_Close"); }));
        EXPECT_TRUE(Form->isVisible());
        Press(*Form, Qt::Key_F, Qt::ControlModifier);
        Keys({}, Qt::Key_Escape); // the filter's
        EXPECT_EQ(Listed().size(), 3);
        EXPECT_EQ(Cell(2, 2), u"• typed");
        Click_Row(0); // and another one
        EXPECT_TRUE(Asked(u"Stay"_s, [&] { Press(*Form, Qt::Key_F5); }));
        EXPECT_EQ(Cell(2, 2), u"• typed");
        EXPECT_TRUE(Asked(u"Discard"_s, [&] { Press(*Form, Qt::Key_F5); }));
        EXPECT_EQ(Cell(2, 2), QString());
        Click_Cell(2, 2);
        Keys(u"last"_s);
        EXPECT_TRUE(Asked(u"Apply"_s, [&] { Press(*Form, Qt::Key_Escape); }));
        EXPECT_FALSE(Form->isVisible());
        EXPECT_EQ(Window.Files.Read(u"videos/3.en.mp3.opt"_s), "Title=last\r\n");
    });
}
