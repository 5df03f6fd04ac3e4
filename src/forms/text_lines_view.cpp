#include "forms/text_lines_view.h"

#include "forms/looks.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

int Widest_Line(const QStringList& lines, const QFont& font)
{
    const QFontMetrics metrics(font);
    const bool fixed = Is_Fixed_Width(font);
    const int tab = metrics.averageCharWidth() * 16;
    qsizetype most_letters = 0;
    int widest = 0;
    for (const QString& line : lines) {
        if (fixed && Is_Plain_Line(line))
            most_letters = std::max(most_letters, line.size());
        else
            widest = std::max(widest, metrics.horizontalAdvance(line) + tab * static_cast<int>(line.count(u'\t')));
    }
    const double letter = QFontMetricsF(font).horizontalAdvance(u'x');
    return std::max(widest, static_cast<int>(letter * static_cast<double>(most_letters)) + 1);
}

Text_Lines_View::Text_Lines_View(QWidget* parent) : QListView(parent), rows_(new Text_Line_Delegate(this))
{
    setFont(Fixed_Font());
    setModel(&lines_);
    setItemDelegate(rows_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideNone);

    auto* copy = new QAction(tr("Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &Text_Lines_View::Copy);
    addAction(copy);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void Text_Lines_View::Show_Lines(const QStringList& lines)
{
    if (lines_.stringList() == lines)
        return;
    if (!wrapped_)
        rows_->Set_Widest(Widest_Line(lines, font()));
    lines_.setStringList(lines);
}

void Text_Lines_View::Select_Row(int row)
{
    const bool other = currentIndex().row() != row;
    setCurrentIndex(lines_.index(row));
    if (row < 0)
        clearSelection();
    else if (other) // what belongs to it stands below it
        scrollTo(lines_.index(std::max(0, row - 1)), PositionAtTop);
}

void Text_Lines_View::Go_To_Row(int row)
{
    const QModelIndex index = lines_.index(row);
    const QRect place = visualRect(index);
    const bool in_sight = place.top() >= 0 && place.bottom() < viewport()->height();
    setCurrentIndex(index);
    if (!in_sight)
        scrollTo(index, PositionAtCenter);
    if (!wrapped_)
        Scroll_To_Found(index.data().toString());
}

/// A line that doesn't hold what was found is shown from its beginning.
void Text_Lines_View::Scroll_To_Found(const QString& line)
{
    const qsizetype at = found_.isEmpty() ? -1 : line.indexOf(found_, 0, Qt::CaseInsensitive);
    QScrollBar& bar = *horizontalScrollBar();
    if (at < 0)
        return bar.setValue(0);
    const int left = fontMetrics().horizontalAdvance(line.first(at));
    const int right =
        fontMetrics().horizontalAdvance(line.first(at + found_.size())) + 2 * Text_Line_Delegate::Margin(*style());
    const int width = viewport()->width();
    if (left < bar.value() || right > bar.value() + width)
        bar.setValue(right <= width ? 0 : left - width / 3);
}

void Text_Lines_View::Set_Wrapped(bool wrapped)
{
    if (wrapped_ == wrapped)
        return;
    wrapped_ = wrapped;
    setUniformItemSizes(!wrapped);
    setHorizontalScrollBarPolicy(wrapped ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    Measure();
    scrollTo(currentIndex());
}

void Text_Lines_View::Set_Found(const QString& text)
{
    if (found_ == text)
        return;
    found_ = text;
    rows_->Set_Found(text);
    viewport()->update();
}

void Text_Lines_View::Set_Colouring(Text_Line_Delegate::Colouring colour_of)
{
    rows_->Set_Colouring(std::move(colour_of));
    viewport()->update();
}

void Text_Lines_View::Set_Text_Size(int points)
{
    QFont sized = font();
    if (sized.pointSize() == points)
        return;
    sized.setPointSize(points);
    setFont(sized);
}

void Text_Lines_View::Measure()
{
    if (wrapped_)
        return Wrap();
    rows_->Set_Wrapper(std::nullopt);
    rows_->Set_Widest(Widest_Line(lines_.stringList(), font()));
    scheduleDelayedItemsLayout();
}

void Text_Lines_View::Wrap()
{
    wrapped_at_ = viewport()->width();
    rows_->Set_Wrapper(Line_Wrapper(font(), wrapped_at_ - 2 * Text_Line_Delegate::Margin(*style())));
    scheduleDelayedItemsLayout();
}

void Text_Lines_View::resizeEvent(QResizeEvent* event)
{
    if (wrapped_ && viewport()->width() != wrapped_at_)
        Wrap();
    QListView::resizeEvent(event);
}

void Text_Lines_View::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        Measure();
    QListView::changeEvent(event);
}

void Text_Lines_View::Copy() const
{
    QModelIndexList rows = selectionModel()->selectedIndexes();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    QStringList lines;
    for (const QModelIndex& row : rows)
        lines += row.data().toString();
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}
