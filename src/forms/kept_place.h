#pragma once

#include "support/controls.h"

#include <QObject>
#include <QRect>
#include <QSize>

class QWidget;

/// Keeps a form and the record of its place in step: what the operator does to the window goes into the record, what
/// the rules write there moves the window.
class Kept_Place : public QObject
{
    Q_OBJECT

  public:
    Kept_Place(QWidget& form, Form_Place& place);

    /// Before the rules place the form for the first time: the record takes this size, or what the layout needs.
    void Propose_Size(const QSize& usual);
    /// Before the form is seen: puts it where the record says, wholly on the screen.
    void Open();
    /// Moves the form if the rules changed the record.
    void Render();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Note();

    QWidget& form_;
    Form_Place& place_;
    Form_Place shown_; ///< the record as it was rendered
    QRect placed_;     ///< where the form was put last
};
