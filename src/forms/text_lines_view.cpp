#include "forms/text_lines_view.h"

#include "forms/looks.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>

namespace {

/// Rows as wide as the widest line. The list asks for the size of one row only.
class Wide_Rows : public QStyledItemDelegate
{
  public:
    explicit Wide_Rows(Text_Lines_View& view) : QStyledItemDelegate(&view), view_(view) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const int edge = 2 * (view_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 2);
        return {view_.Widest() + edge, QStyledItemDelegate::sizeHint(option, index).height()};
    }

  private:
    Text_Lines_View& view_;
};

} // namespace

/// Where each character is as wide as the next: printable ASCII in a font of fixed width.
static bool Is_Plain(const QString& line)
{
    return std::ranges::all_of(line, [](QChar letter) { return letter >= u' ' && letter <= u'~'; });
}

int Widest_Line(const QStringList& lines, const QFont& font)
{
    const QFontMetrics metrics(font);
    const bool fixed = Is_Fixed_Width(font);
    const int tab = metrics.averageCharWidth() * 16;
    qsizetype most_letters = 0;
    int widest = 0;
    for (const QString& line : lines) {
        if (fixed && Is_Plain(line))
            most_letters = std::max(most_letters, line.size());
        else
            widest = std::max(widest, metrics.horizontalAdvance(line) + tab * static_cast<int>(line.count(u'\t')));
    }
    const double letter = QFontMetricsF(font).horizontalAdvance(u'x');
    return std::max(widest, static_cast<int>(letter * static_cast<double>(most_letters)) + 1);
}

Text_Lines_View::Text_Lines_View(QWidget* parent) : QListView(parent)
{
    setFont(Fixed_Font());
    setModel(&lines_);
    setItemDelegate(new Wide_Rows(*this));
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
    widest_ = Widest_Line(lines, font());
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
    widest_ = Widest_Line(lines_.stringList(), font());
    scheduleDelayedItemsLayout();
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
