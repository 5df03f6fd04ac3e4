#pragma once

#include "forms/line_wrapper.h"

#include <QColor>
#include <QStyledItemDelegate>
#include <functional>
#include <optional>

/// Draws the rows of a Text_Lines_View: lines in a colour of their own, what was found in them underlined, and wrapped
/// where that is wanted.
class Text_Line_Delegate : public QStyledItemDelegate
{
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The colour of a line that has one of its own; an invalid one else.
    using Colouring = std::function<QColor(const QString& line, const QPalette& palette)>;

    void Set_Colouring(Colouring colour_of) { colour_of_ = std::move(colour_of); }

    /// What is underlined, in any case; empty: nothing.
    void Set_Found(const QString& text) { found_ = text; }

    /// Rows that aren't wrapped are as wide as the widest line.
    void Set_Widest(int pixels) { widest_ = pixels; }

    /// Wrapped at a width; nothing: rows of one line each.
    void Set_Wrapper(const std::optional<Line_Wrapper>& wrapper) { wrapper_ = wrapper; }

    /// From a row's left edge to its text, in pixels.
    static int Margin(const QStyle& style);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    void Underline(QPainter& painter, const QString& line, const QStringList& pieces, const QRect& first,
                   int indent) const;

    Colouring colour_of_ = [](const QString&, const QPalette&) { return QColor(); };
    QString found_;
    int widest_ = 0;
    std::optional<Line_Wrapper> wrapper_;
};
