#pragma once

#include "state/main_form.h"

#include <QFrame>
#include <QLabel>

/// The trough of the progress bar: it fills from the left with the share of the batch that is done.
class Progress_Box : public QFrame
{
    Q_OBJECT

  public:
    explicit Progress_Box(QWidget* parent = nullptr);

    void Set_Progress(double fraction, Progress_Look look);

    double Fraction() const { return fraction_; }

    Progress_Look Look() const { return look_; }

    /// Right edge of the fill, in pixels of this box.
    int Filled_Width() const;
    /// The colour of the bar and its label.
    QColor Colour() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double fraction_ = 0;
    Progress_Look look_ = Progress_Look::Idle;
};

/// The words on the bar. Where the fill lies under them they turn to the colour that reads on it.
class Progress_Label : public QLabel
{
    Q_OBJECT

  public:
    explicit Progress_Label(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};
