#include "forms/text_line_delegate.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

/// A line that holds a letter a million times is drawn without a mark below each.
static constexpr int Most_Underlines = 200;

int Text_Line_Delegate::Margin(const QStyle& style)
{
    return style.pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
}

static const QStyle& Style_Of(const QStyleOptionViewItem& option)
{
    return option.widget != nullptr ? *option.widget->style() : *QApplication::style();
}

void Text_Line_Delegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (const QColor colour = colour_of_(index.data().toString(), option->palette); colour.isValid())
        option->palette.setColor(QPalette::Text, colour);
}

QSize Text_Line_Delegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QStyle& style = Style_Of(option);
    // A list whose rows differ asks for each of them.
    if (wrapper_) {
        const int height = option.fontMetrics.height();
        return {1, height * wrapper_->Count(index.data().toString()) +
                       2 * style.pixelMetric(QStyle::PM_FocusFrameVMargin)};
    }
    return {widest_ + 2 * Margin(style) + 2, QStyledItemDelegate::sizeHint(option, index).height()};
}

/// A line below each place where what was found stands; `first` is where the first piece is drawn.
void Text_Line_Delegate::Underline(QPainter& painter, const QString& line, const QStringList& pieces,
                                   const QRect& first, int indent) const
{
    const QFontMetrics metrics(painter.font());
    int marks = 0;
    for (qsizetype at = line.indexOf(found_, 0, Qt::CaseInsensitive); at >= 0 && marks < Most_Underlines; ++marks) {
        qsizetype start = 0;
        for (qsizetype number = 0; number < pieces.size(); ++number) {
            const QString& piece = pieces[number];
            const qsizetype from = std::max(at, start) - start;
            const qsizetype to = std::min(at + found_.size(), start + piece.size()) - start;
            const int left = first.left() + (number > 0 ? indent : 0);
            const int below = first.top() + static_cast<int>(number) * metrics.height() + metrics.ascent() + 2;
            if (from < to)
                painter.fillRect(QRect(QPoint(left + metrics.horizontalAdvance(piece.first(from)), below),
                                       QPoint(left + metrics.horizontalAdvance(piece.first(to)) - 1, below + 1)),
                                 painter.pen().color());
            start += piece.size();
        }
        at = line.indexOf(found_, at + found_.size(), Qt::CaseInsensitive);
    }
}

void Text_Line_Delegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QString line = index.data().toString();
    if (!wrapper_ && found_.isEmpty())
        return QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStyle& style = Style_Of(option);
    if (wrapper_)
        row.text.clear();
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, option.widget);

    painter->save();
    painter->setFont(row.font);
    const bool active = row.state & QStyle::State_Active;
    const bool selected = row.state & QStyle::State_Selected;
    painter->setPen(row.palette.color(active ? QPalette::Active : QPalette::Inactive,
                                      selected ? QPalette::HighlightedText : QPalette::Text));
    const int height = row.fontMetrics.height();
    const QStringList pieces = wrapper_ ? wrapper_->Pieces(line) : QStringList{line};
    const int indent = wrapper_ ? wrapper_->Indent(line) : 0;
    QRect first = row.rect.adjusted(Margin(style), 0, 0, 0);
    first.setTop(first.top() + (first.height() - height * static_cast<int>(pieces.size())) / 2);
    for (qsizetype number = 0; wrapper_ && number < pieces.size(); ++number)
        painter->drawText(first.left() + (number > 0 ? indent : 0),
                          first.top() + static_cast<int>(number) * height + row.fontMetrics.ascent(), pieces[number]);
    if (!found_.isEmpty())
        Underline(*painter, line, pieces, first, indent);
    painter->restore();
}
