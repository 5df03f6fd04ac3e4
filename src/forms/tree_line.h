#pragma once

#include <QWidget>

/// One line of a group's diagram: the elbow that leads from an option down to one that depends on it. Drawn in the
/// colour of text while on, in grey while off.
class Tree_Line : public QWidget
{
    Q_OBJECT

  public:
    explicit Tree_Line(QWidget* parent = nullptr);

    void Set_On(bool on);

    bool Is_On() const { return on_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool on_ = false;
};
