#pragma once

#include <QObject>
#include <QPointer>

class QMessageBox;
class Slot_Guard;
struct Program;

/// Shows Form.Halt_Question over the main form, and brings the answer. Nobody waits for it: the run goes on, and takes
/// the question away when it ends. Escape goes on.
class Halt_Question_View : public QObject
{
    Q_OBJECT

  public:
    Halt_Question_View(Program& program, Slot_Guard& guard, QWidget& form);

    void Render();

  private:
    void Open();

    Program& program_;
    Slot_Guard& guard_;
    QWidget& form_;
    QPointer<QMessageBox> box_;
};
