#pragma once

#include <QListView>
#include <QStringListModel>

/// A list of many lines of text in a font of fixed width, quick at tens of thousands: one model, rows of one size, as
/// wide as the longest line. Several lines can be selected and copied.
class Text_Lines_View : public QListView
{
    Q_OBJECT

  public:
    explicit Text_Lines_View(QWidget* parent = nullptr);

    void Show_Lines(const QStringList& lines);
    void Select_Row(int row);
    void Set_Text_Size(int points);

    /// The widest line's width in pixels.
    int Widest() const { return widest_; }

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Measure();
    void Copy() const;

    QStringListModel lines_;
    int widest_ = 0;
};

/// The width in pixels of the widest of the lines.
int Widest_Line(const QStringList& lines, const QFont& font);
