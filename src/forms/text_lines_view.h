#pragma once

#include "forms/text_line_delegate.h"

#include <QListView>
#include <QStringListModel>

/// A list of many lines of text in a font of fixed width, quick at tens of thousands: one model, rows of one size, as
/// wide as the longest line, or, wrapped, rows of their own heights as wide as the list. Several lines can be selected
/// and copied.
class Text_Lines_View : public QListView
{
    Q_OBJECT

  public:
    explicit Text_Lines_View(QWidget* parent = nullptr);

    void Show_Lines(const QStringList& lines);
    void Select_Row(int row);
    /// Selects a row, which is brought into sight, and what was found in it too.
    void Go_To_Row(int row);
    void Set_Text_Size(int points);
    void Set_Wrapped(bool wrapped);
    /// What is underlined in all lines, in any case; empty: nothing.
    void Set_Found(const QString& text);
    void Set_Colouring(Text_Line_Delegate::Colouring colour_of);

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Measure();
    void Wrap();
    void Scroll_To_Found(const QString& line);
    void Copy() const;

    QStringListModel lines_;
    Text_Line_Delegate* rows_;
    QString found_;
    bool wrapped_ = false;
    int wrapped_at_ = 0; ///< the width that the rows are wrapped at
};

/// The width in pixels of the widest of the lines.
int Widest_Line(const QStringList& lines, const QFont& font);
