#pragma once

#include <QPointer>
#include <QWidget>

class QListWidget;
class QMessageBox;
class QToolButton;
class Slot_Guard;
struct Program;

/// What is run next, below a line under the list of the videos; and the question about a folder that was dropped or
/// pasted while a run goes on. Nobody waits for the answer.
class Run_Queue_View : public QWidget
{
    Q_OBJECT

  public:
    Run_Queue_View(Program& program, Slot_Guard& guard, QWidget* owner);

    /// Brings it in step with the record: hidden while nothing is queued, or with `open` false.
    void Render(bool open);

    /// The controls in the order of the Tab key.
    QList<QWidget*> In_Tab_Order() const;

  private:
    void Paste();
    void Remove();
    void Show_Folders(bool open);
    void Ask();

    Program& program_;
    Slot_Guard& guard_;
    QListWidget* folders_;
    QToolButton* remove_;
    QPointer<QMessageBox> box_;
};
