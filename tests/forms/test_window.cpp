#include "forms/test_window.h"

#include "life/start_up.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>

Test_Person::Test_Person()
{
    connect(&look_, &QTimer::timeout, this, &Test_Person::Look);
    look_.start(10);
}

void Test_Person::Look()
{
    const QPointer<QWidget> modal = QApplication::activeModalWidget();
    if (!modal || modal == met_ || QGuiApplication::overrideCursor())
        return; // a person waits while the pointer is busy
    if (auto* box = qobject_cast<QMessageBox*>(modal); box && box->button(QMessageBox::Ok)) {
        Boxes.push_back({box->windowTitle(), box->text()});
        box->button(QMessageBox::Ok)->click();
        return;
    }
    const QString name = modal->objectName().startsWith(u"frm_")
                             ? modal->objectName()
                             : QString::fromLatin1(modal->metaObject()->className());
    Forms += name;
    const QWidget* before = met_;
    met_ = modal;
    if (const auto action = On_Form.find(name); action != On_Form.end())
        action->second(*modal);
    if (name != Left_Open && modal && modal->isVisible() && QApplication::activeModalWidget() == modal)
        modal->close();
    met_ = const_cast<QWidget*>(before);
}

Test_Window::Test_Window() = default;

Test_Window::~Test_Window()
{
    // A form that a test left open has nothing to save.
    if (!Desk)
        return;
    Desk->Prog.Settings.Save_On_Exit = false;
    if (!Desk->Guard.Ended())
        return;
    // The end of the event loop was asked for; the tests behind this one need one that turns.
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
    QApplication::exec();
}

bool Test_Window::Start()
{
    Desk = nullptr;
    // No form can wait for its person after a program that ended, until the application runs again.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QApplication::exec();
    Desk = std::make_unique<Desktop>();
    Prog().Settings.App_Folder = Files.Path(u"app/"_s);
    lock_ = std::make_unique<Instance_Lock>();
    if (!Desk->Start(lock_.get()))
        return false;
    QCoreApplication::processEvents();
    return true;
}

void Test_Window::Quit()
{
    Press(Form(), Qt::Key_F4, Qt::AltModifier);
    Desk = nullptr;
    lock_ = nullptr;
}

void Test_Window::Choose(const char* action)
{
    Action(action).trigger();
    QCoreApplication::processEvents();
}

void Test_Window::Set_Folders()
{
    Drop_On(Get("pic_VideosPath"), {Files.Path(u"videos"_s)});
    Drop_On(Get("pic_TargetPath"), {Files.Path(u"target"_s)});
}

void Click_On(QWidget& widget, QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    QWidget* window = widget.window();
    QTest::mouseClick(window->windowHandle(), button, keys, widget.mapTo(window, at));
    QCoreApplication::processEvents();
}

void Click_On(QWidget& widget, Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    Click_On(widget, QPoint(8, widget.height() / 2), button, keys);
}

void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers keys)
{
    QTest::keyClick(widget.window()->windowHandle(), key, keys);
    QCoreApplication::processEvents();
}

bool Drop_On(QWidget& widget, const QMimeData& data)
{
    const QPoint middle = widget.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &enter);
    if (!widget.isEnabled() || !enter.isAccepted())
        return false;
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &drop);
    QCoreApplication::processEvents();
    return drop.isAccepted();
}

bool Drop_On(QWidget& widget, const QStringList& paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls += QUrl::fromLocalFile(path);
    data.setUrls(urls);
    return Drop_On(widget, data);
}

bool Wait_Until(const std::function<bool()>& done)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > 10'000)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    }
    return true;
}
