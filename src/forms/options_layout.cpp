#include "forms/options_layout.h"

#include "ui_startform.h"

#include <QEvent>
#include <QGridLayout>
#include <QScrollBar>
#include <algorithm>

using namespace Qt::StringLiterals;

constexpr int Row_Gap = 2;
constexpr int Scroll_Bar_Gap = 6;

/// What the widest item of a column of a grid wants.
static int Column_Width(const QGridLayout& grid, int column)
{
    int width = 0;
    for (int row = 0; row < grid.rowCount(); ++row)
        if (const QLayoutItem* item = grid.itemAtPosition(row, column))
            width = std::max(width, item->sizeHint().width());
    return width;
}

/// How many rows the items of a grid take. QGridLayout::rowCount() counts the row of the stretch, too.
static int Rows_Taken(const QGridLayout& grid)
{
    int taken = 0;
    for (int i = 0; i < grid.count(); ++i) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid.getItemPosition(i, &row, &column, &rows, &columns);
        taken = std::max(taken, row + rows);
    }
    return taken;
}

/// A box whose caption changes has room for the widest, so that no change of a caption moves anything.
static void Reserve(QCheckBox& box, const QString& widest)
{
    const QString shown = box.text();
    const int width = box.sizeHint().width();
    box.setText(widest);
    box.setMinimumWidth(std::max(width, box.sizeHint().width()));
    box.setText(shown);
}

Options_Layout::Options_Layout(Ui::Startform& ui, QObject* parent) : QObject(parent), ui_(ui)
{
    ui_.scr_Options->viewport()->installEventFilter(this);
}

void Options_Layout::Measure()
{
    const int row = ui_.txt_AudioDelayValue->sizeHint().height();
    for (QGridLayout* grid : {ui_.lay_Audio, ui_.lay_Subs, ui_.lay_Chapters, ui_.lay_Other}) {
        const int rows = Rows_Taken(*grid);
        grid->setVerticalSpacing(Row_Gap);
        for (int i = 0; i < rows; ++i)
            grid->setRowMinimumHeight(i, row);
        // What is left over goes below the rows, not between them.
        grid->setRowStretch(rows, 1);
    }
    // The row that audio leaves empty, so that what is added stands level with its twin; no gap goes with it.
    ui_.lay_Audio->setRowMinimumHeight(5, row + Row_Gap);

    Reserve(*ui_.chk_CustomAudioFilter, u"Apply custom Audio Filter (keep)"_s);
    Reserve(*ui_.chk_CustomSubsFilter, u"Apply custom Subtitle Filter (keep)"_s);
    Reserve(*ui_.chk_SubDefaults, u"Set All Subtitles defaults to \"yes\""_s);
    Reserve(*ui_.chk_SubForces, u"Set All Subtitles forces to \"yes\""_s);
    Reserve(*ui_.chk_CustomFileTitle, u"Set Custom File Title (NOT empty)"_s);
    Reserve(*ui_.chk_CustomVideoTitle, u"Set Custom Video Title (NOT empty)"_s);
    Reserve(*ui_.chk_AddAttachments, u"Add Attachments (path not set)"_s);
    ui_.lbl_ChapsFormat->setMinimumWidth(
        ui_.lbl_ChapsFormat->sizeHint().width() +
        std::max(0, ui_.lbl_ChapsFormat->fontMetrics().horizontalAdvance(u"HH:MM:SS.hh(h)"_s) -
                        ui_.lbl_ChapsFormat->fontMetrics().horizontalAdvance(ui_.lbl_ChapsFormat->text())));
    for (int column = 0; column < 2; ++column) {
        const int width = std::max(Column_Width(*ui_.lay_Chapters, column), Column_Width(*ui_.lay_Other, column));
        ui_.lay_Chapters->setColumnMinimumWidth(column, width);
        ui_.lay_Other->setColumnMinimumWidth(column, width);
    }
    const Shape shape = shape_ == Shape::None ? Shape::Wide : Shape_For_Room();
    shape_ = Shape::None;
    Arrange(shape);
}

static int Width(const QWidget* group)
{
    return group->sizeHint().width();
}

QSize Options_Layout::Whole_Size() const
{
    const int gap = ui_.lay_Options->horizontalSpacing();
    const int right = std::max(Width(ui_.fram_Chapters), Width(ui_.fram_Other));
    const int left = std::max(ui_.fram_Audio->sizeHint().height(), ui_.fram_Subs->sizeHint().height());
    return {Width(ui_.fram_Audio) + Width(ui_.fram_Subs) + right + 2 * gap,
            std::max(left, ui_.fram_Chapters->sizeHint().height() + ui_.lay_Options->verticalSpacing() +
                               ui_.fram_Other->sizeHint().height())};
}

int Options_Layout::Scroll_Bar_Room() const
{
    return ui_.scr_Options->verticalScrollBar()->sizeHint().width() + Scroll_Bar_Gap;
}

Options_Layout::Shape Options_Layout::Shape_For_Room() const
{
    const QSize room = ui_.scr_Options->contentsRect().size();
    const int bar = Scroll_Bar_Room();
    const QSize whole = Whole_Size();
    if (room.width() >= whole.width() + (room.height() < whole.height() ? bar : 0))
        return Shape::Wide;
    const int pair = Width(ui_.fram_Audio) + Width(ui_.fram_Subs) + ui_.lay_Options->horizontalSpacing();
    const int square = std::max({pair, Width(ui_.fram_Chapters), Width(ui_.fram_Other)});
    return room.width() >= square + bar ? Shape::Square : Shape::Tall;
}

void Options_Layout::Arrange(Shape shape)
{
    if (shape == shape_)
        return;
    shape_ = shape;
    QGridLayout& grid = *ui_.lay_Options;
    for (QWidget* group : {ui_.fram_Audio, ui_.fram_Subs, ui_.fram_Chapters, ui_.fram_Other})
        grid.removeWidget(group);
    switch (shape) {
    case Shape::Wide:
        grid.addWidget(ui_.fram_Audio, 0, 0, 2, 1);
        grid.addWidget(ui_.fram_Subs, 0, 1, 2, 1);
        grid.addWidget(ui_.fram_Chapters, 0, 2);
        grid.addWidget(ui_.fram_Other, 1, 2);
        break;
    case Shape::Square:
        grid.addWidget(ui_.fram_Audio, 0, 0);
        grid.addWidget(ui_.fram_Subs, 0, 1);
        grid.addWidget(ui_.fram_Chapters, 1, 0, 1, 2);
        grid.addWidget(ui_.fram_Other, 2, 0, 1, 2);
        break;
    default:
        grid.addWidget(ui_.fram_Audio, 0, 0);
        grid.addWidget(ui_.fram_Subs, 1, 0);
        grid.addWidget(ui_.fram_Chapters, 2, 0);
        grid.addWidget(ui_.fram_Other, 3, 0);
        break;
    }
    for (int column = 0; column < 3; ++column)
        grid.setColumnStretch(column, shape == Shape::Wide ? (column == 2 ? 2 : 1) : column == 2 ? 0 : 1);
    for (int row = 0; row < 4; ++row)
        grid.setRowStretch(row, (shape == Shape::Wide && row == 1) || (shape != Shape::Wide && row == 3) ? 1 : 0);
}

bool Options_Layout::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        Arrange(Shape_For_Room());
        const bool scrolls = ui_.scr_Options->verticalScrollBar()->isVisible();
        ui_.lay_Options->setContentsMargins(0, 0, scrolls ? Scroll_Bar_Gap : 0, 0);
    }
    return QObject::eventFilter(watched, event);
}
