#pragma once

#include <QObject>

/// While it lives, nothing that the person does reaches the program, and the pointer shows that it is busy. For rules
/// that let events have their turn while a form's records are half filled.
class Input_Pause : public QObject
{
    Q_OBJECT

  public:
    Input_Pause();
    ~Input_Pause() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
