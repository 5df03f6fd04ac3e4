#pragma once

#include <QObject>

class QGridLayout;
class QScrollArea;
class QWidget;

namespace Ui {
class Startform;
}

/// Lays the four option groups out by the room there is: side by side, two by two, or below each other. All rows of
/// all groups have one height, so that they line up across the groups.
class Options_Layout : public QObject
{
    Q_OBJECT

  public:
    explicit Options_Layout(Ui::Startform& ui, QObject* parent);

    /// The size in which nothing has to scroll, with the groups side by side.
    QSize Whole_Size() const;
    /// The width that a scroll bar takes, with its distance from the groups.
    int Scroll_Bar_Room() const;
    /// Ahead of the first show, and after a change of font or style.
    void Measure();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    enum class Shape
    {
        None,
        Wide,
        Square,
        Tall
    };

    Shape Shape_For_Room() const;
    void Arrange(Shape shape);

    Ui::Startform& ui_;
    Shape shape_ = Shape::None;
};
