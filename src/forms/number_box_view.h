#pragma once

#include "rules/number_boxes.h"

#include <QObject>

class QLineEdit;
class Slot_Guard;

/// The operations of one number box.
struct Number_Box_Rules
{
    void (*Change)(Program&);
    void (*Key)(Program&, Number_Key);
    void (*Lost_Focus)(Program&);
};

/// Ties a line edit to the record of a number box and its rules: text and caret go to the record, the rule says what
/// stays. The box is left for another control of its window; a menu, or another window in front, is no leaving.
class Number_Box_View : public QObject
{
    Q_OBJECT

  public:
    Number_Box_View(Program& program, Slot_Guard& guard, QLineEdit& edit, Text_Box& record, Number_Box_Rules rules);

    void Render();
    /// The focus is taken from the box in a way that it may not be told of. Nothing happens if it has been left.
    void Leave();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool Key_Pressed(int key);

    Program& program_;
    Slot_Guard& guard_;
    QLineEdit& edit_;
    Text_Box& record_;
    Number_Box_Rules rules_;
    bool backspace_ = false; ///< the change under way comes from that key
    bool entered_ = false;   ///< it has the focus, or gets it back when its window does
    bool clicked_ = false;   ///< the press of the mouse that brought the focus isn't over
};
