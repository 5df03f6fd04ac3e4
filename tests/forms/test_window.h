#pragma once

#include "common/test_program.h"
#include "forms/desktop.h"
#include "life/instance_lock.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <map>
#include <memory>

class QMimeData;

/// Answers what opens before the main form: notes each message box and presses its first button, and does in each
/// other form what the test laid down for its name ("frm_CustomTitle", "QFileDialog").
class Test_Person : public QObject
{
    Q_OBJECT

  public:
    Test_Person();

    struct Box
    {
        QString Title;
        QString Text;
    };

    std::vector<Box> Boxes;
    QStringList Forms; ///< names, in the order in which they were met
    std::map<QString, std::function<void(QWidget&)>> On_Form;
    QString Left_Open; ///< name of a form that isn't closed but met again

  private:
    void Look();

    QTimer look_;
    QWidget* met_ = nullptr;
};

/// The desktop program in a folder of its own, and beside it a program without a window to compare with.
class Test_Window
{
  public:
    Test_Window();
    ~Test_Window();

    Test_Program Files; ///< the folders on disk, and the program to compare with
    Test_Person Person;
    std::unique_ptr<Desktop> Desk;

    /// Starts as main does, with the settings file as it is; false if another window has the folder.
    bool Start();
    /// Ends as Alt+F4 does.
    void Quit();

    Program& Prog() { return Desk->Prog; }

    Startform& Form() { return Desk->Form; }

    template <typename Widget = QWidget>
    Widget& Get(const char* name)
    {
        auto* widget = Form().findChild<Widget*>(QLatin1StringView(name));
        if (!widget)
            qFatal("There is no %s", name);
        return *widget;
    }

    QAction& Action(const char* name) { return *Form().findChild<QAction*>(QLatin1StringView(name)); }

    /// Chooses a menu item and lets its command have its turn.
    void Choose(const char* action);
    /// Sets both folders, with `videos` in the first, and takes them into the form as drops do.
    void Set_Folders();

  private:
    std::unique_ptr<Instance_Lock> lock_;
};

/// Stands in for the desktop's program for documents.
class Document_Opener : public QObject
{
    Q_OBJECT

  public:
    QUrl Opened;

  public slots:

    void Open(const QUrl& url) { Opened = url; }
};

/// A mouse button down and up on the window below the pointer, as the window system delivers it. Without a place:
/// at the left edge, where a check box has its box.
void Click_On(QWidget& widget, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
void Click_On(QWidget& widget, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys);
/// Keys to whatever has the focus in the widget's window.
void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers keys = {});
/// Drags the data over the widget and lets it go. False if the widget wouldn't take it.
bool Drop_On(QWidget& widget, const QMimeData& data);
/// The same with files or folders.
bool Drop_On(QWidget& widget, const QStringList& paths);
/// Lets events have their turn until `done` holds; false after ten seconds.
bool Wait_Until(const std::function<bool()>& done);
