#pragma once

#include "support/input.h"

#include <QPushButton>

/// A button that tells of every mouse button let go, wherever the pointer is by then, and leaves it to the rules what
/// counts as a press. Space, Enter and the button's letter act as a release of the left button in its middle.
class Release_Button : public QPushButton
{
    Q_OBJECT

  public:
    explicit Release_Button(QWidget* parent = nullptr);

    /// Paints the button as the one that matters: white words on this colour.
    void Set_Colour(const QColor& colour);

  signals:
    void Released_At(const Mouse_Release& release);

  protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Release_In_Middle();

    QColor colour_;
};
