#include "forms/window_operator.h"

#include "forms/desktop_notice.h"
#include "forms/form_registry.h"
#include "forms/program_dialog.h"
#include "forms/slot_guard.h"
#include "forms/startform.h"
#include "run/list_runs.h"
#include "state/program.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QWindow>

using namespace Qt::StringLiterals;

/// Sixty pictures a second are enough for an eye; a run has better things to do.
constexpr int Render_Interval_Ms = 16;

void Window_Operator::Attach(Program& program, Slot_Guard& guard, Startform& form)
{
    program_ = &program;
    guard_ = &guard;
    form_ = &form;
    guard.Set_Renderer([this] {
        Keep_List_In_Step(*program_);
        Render();
    });
    since_render_.start();
}

void Window_Operator::Render()
{
    form_->Render();
    for (const auto& [name, form] : forms_)
        if (form->isVisible())
            form->Render();
    since_render_.restart();
    filled_ = program_->Videos.Filled;
}

Program_Dialog* Window_Operator::Form(const QString& name)
{
    if (const auto known = forms_.find(name); known != forms_.end())
        return known->second;
    const auto maker = Form_Makers().find(name);
    if (maker == Form_Makers().end())
        return nullptr;
    Program_Dialog* form = maker->second(*program_, *guard_, form_);
    forms_.emplace(name, form);
    return form;
}

void Window_Operator::Stop_If_Ended() const
{
    if (guard_->Ended())
        throw End_Of_Program{};
}

QWidget* Window_Operator::Owner() const
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return form_->isVisible() ? form_ : nullptr;
}

template <typename Question>
auto Window_Operator::Ask(const Question& question)
{
    Stop_If_Ended();
    Render();
    // Whoever is asked isn't kept waiting.
    const QCursor* busy = QGuiApplication::overrideCursor();
    const Qt::CursorShape shape = busy ? busy->shape() : Qt::ArrowCursor;
    if (busy)
        QGuiApplication::restoreOverrideCursor();
    auto answer = question();
    if (busy)
        QGuiApplication::setOverrideCursor(shape);
    Stop_If_Ended();
    return answer;
}

/// Text of a box as a label shows it: lines end in LF.
static QString Shown_Lines(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    while (text.endsWith(u'\n'))
        text.chop(1);
    return text;
}

static QMessageBox::Icon Icon_Of(Message_Icon icon)
{
    switch (icon) {
    case Message_Icon::Stop:
        return QMessageBox::Critical;
    case Message_Icon::Exclamation:
        return QMessageBox::Warning;
    case Message_Icon::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

/// The question what becomes of something that isn't applied yet. Whoever just closes it stays.
static Message_Answer Ask_Before_Leaving(QMessageBox& window)
{
    window.setObjectName(u"frm_NotApplied"_s);
    const QAbstractButton* apply = window.addButton(u"&Apply"_s, QMessageBox::AcceptRole);
    const QAbstractButton* discard = window.addButton(u"&Discard"_s, QMessageBox::DestructiveRole);
    QPushButton* stay = window.addButton(u"&Stay"_s, QMessageBox::RejectRole);
    window.setDefaultButton(stay);
    window.setEscapeButton(stay);
    window.exec();
    return window.clickedButton() == apply     ? Message_Answer::Ok
           : window.clickedButton() == discard ? Message_Answer::Discard
                                               : Message_Answer::Cancel;
}

Message_Answer Window_Operator::Show_Message(const Message_Box& box)
{
    if (program_->Form.Asked_To_Go || program_->Form.Display_Lost)
        return box.Buttons == Message_Buttons::Ok ? Message_Answer::Ok : Message_Answer::Cancel;
    return Ask([&] {
        const bool leaving = box.Buttons == Message_Buttons::Apply_Discard_Stay;
        QMessageBox::StandardButtons buttons = leaving ? QMessageBox::NoButton : QMessageBox::Ok;
        if (box.Buttons == Message_Buttons::Ok_Cancel)
            buttons |= QMessageBox::Cancel;
        QMessageBox window(Icon_Of(box.Icon), box.Title, Shown_Lines(box.Text), buttons, Owner());
        window.setTextFormat(Qt::PlainText);
        window.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        if (leaving)
            return Ask_Before_Leaving(window);
        return window.exec() == QMessageBox::Ok ? Message_Answer::Ok : Message_Answer::Cancel;
    });
}

void Window_Operator::Show_Modal(const QString& name)
{
    Ask([&] {
        Program_Dialog* form = Form(name);
        if (!form)
            return false;
        form->Render(); // its words decide its size
        form->Open();
        form->Render();
        form->exec();
        return true;
    });
}

void Window_Operator::Show_Form(const QString& name)
{
    Stop_If_Ended();
    if (Program_Dialog* form = Form(name)) {
        form->Render();
        form->Open();
        form->show();
        form->activateWindow();
    }
}

QString Window_Operator::Pick_Folder(const QString& title, const QString& start)
{
    return Ask([&] {
        // A window's title is one line; what the second says is told by the tooltips and the fault labels.
        QFileDialog dialog(Owner(), QString(title).replace(u"\r\n"_s, u" "_s).replace(u'\n', u' '), start);
        dialog.setOption(QFileDialog::ShowDirsOnly, false);
        dialog.setFileMode(QFileDialog::Directory);
        // Files are shown, to tell one folder from another, but greyed: no name holds a separator.
        if (auto* files = dialog.findChild<QFileSystemModel*>()) {
            files->setNameFilters({u"/"_s});
            files->setNameFilterDisables(true);
        }
        return dialog.exec() == QDialog::Accepted ? QDir::toNativeSeparators(dialog.selectedFiles().value(0))
                                                  : QString();
    });
}

QStringList Name_Filters(const QString& filter)
{
    QStringList filters;
    const QStringList pieces = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        QString caption = pieces[i];
        // Qt reads the patterns from the last pair of parentheses.
        if (const qsizetype old = caption.lastIndexOf(u'('); old >= 0)
            caption.truncate(old);
        filters += caption.trimmed() + u" ("_s + QString(pieces[i + 1]).replace(u';', u' ') + u')';
    }
    return filters;
}

QStringList Window_Operator::Pick_File(const File_Question& question)
{
    return Ask([&] {
        QFileDialog dialog(Owner(), question.Title, question.Start_Folder);
        dialog.setFileMode(question.Multi_Select ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
        const QStringList filters = Name_Filters(question.Filter);
        dialog.setNameFilters(filters);
        if (question.Filter_Index >= 1 && question.Filter_Index <= filters.size())
            dialog.selectNameFilter(filters[question.Filter_Index - 1]);
        if (!question.File_Name.isEmpty())
            dialog.selectFile(question.File_Name);
        QStringList files = dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
        for (QString& file : files)
            file = QDir::toNativeSeparators(file);
        return files;
    });
}

void Window_Operator::Pump_Events()
{
    if (program_->Form.Display_Lost)
        return;
    Stop_If_Ended();
    // A list that shows rows which are no more would take a click for another row.
    if (since_render_.hasExpired(Render_Interval_Ms) || filled_ != program_->Videos.Filled)
        Render();
    QCoreApplication::processEvents();
    Stop_If_Ended();
}

void Window_Operator::Wait_With_Events(int milliseconds)
{
    if (program_->Form.Display_Lost) {
        QThread::msleep(static_cast<unsigned long>(milliseconds));
        return;
    }
    Stop_If_Ended();
    Render();
    QEventLoop loop;
    QTimer clock;
    clock.setTimerType(Qt::PreciseTimer);
    QObject::connect(&clock, &QTimer::timeout, &loop, &QEventLoop::quit);
    clock.start(milliseconds);
    loop.exec();
    Stop_If_Ended();
}

bool Window_Operator::Open_Document(const QString& path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void Window_Operator::Copy_Text(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

void Window_Operator::Tell_If_Away(const QString& title, const QString& text)
{
    if (QGuiApplication::applicationState() != Qt::ApplicationActive)
        Show_Desktop_Notice(*form_, title, text);
}

void Window_Operator::Raise_Main_Form()
{
    if (!form_->isVisible())
        return;
    if (form_->isMinimized())
        form_->showNormal();
    form_->raise();
    form_->activateWindow();
}

void Window_Operator::Set_Topmost(bool on)
{
    form_->Set_Topmost(on);
}

void Window_Operator::Unload_Main_Form()
{
    form_->close();
}

void Show_Fatal_Error(const QString& message)
{
    QMessageBox window(QMessageBox::Critical, u"Vantorra"_s, Shown_Lines(message), QMessageBox::Ok,
                       QApplication::activeWindow());
    window.setTextFormat(Qt::PlainText);
    window.setTextInteractionFlags(Qt::TextSelectableByMouse);
    window.exec();
}
