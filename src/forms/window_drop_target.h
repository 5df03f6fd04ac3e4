#pragma once

#include <QObject>

class Drop_Panel;
class Slot_Guard;
class Startform;
struct Program;

/// Takes what is dropped anywhere on the main form beside the folders' panels. While it hangs there the panel that it
/// would go to shows its frame.
class Window_Drop_Target : public QObject
{
    Q_OBJECT

  public:
    Window_Drop_Target(Startform& form, Drop_Panel& panel, Program& program, Slot_Guard& guard);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Drop_Panel& panel_;
    Program& program_;
    Slot_Guard& guard_;
    bool is_preset_ = false; ///< what hangs there goes to no panel
};
