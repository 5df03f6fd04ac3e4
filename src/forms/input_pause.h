#pragma once

#include <QObject>

class QWidget;

/// While it lives, nothing that the person does reaches the program, and the pointer shows that it is busy. For rules
/// that let events have their turn while a form's records are half filled. A box that such a rule shows can be
/// answered.
class Input_Pause : public QObject
{
    Q_OBJECT

  public:
    Input_Pause();
    ~Input_Pause() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    const QWidget* const modal_; ///< the form that was in front when it began
};
