#include "forms/video_list_model.h"

#include "forms/looks.h"
#include "forms/state_icons.h"
#include "rules/video_list.h"
#include "rules/video_order.h"
#include "rules/video_texts.h"

using namespace Qt::StringLiterals;

static constexpr int Columns = 7;

Video_List_Model::Video_List_Model(const Video_List& list, QObject* parent) : QAbstractTableModel(parent), list_(list)
{}

void Video_List_Model::Set_Looks(const QPalette& palette)
{
    palette_ = palette;
    icons_ = {};
    good_ = Finished_Colour(palette);
    odd_ = Mark_Colour(palette);
    bad_ = Fault_Colour(palette);
    if (!shown_.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, Columns - 1));
}

const QIcon& Video_List_Model::Icon_Of(Video_State state) const
{
    QIcon& icon = icons_[static_cast<std::size_t>(state)];
    if (icon.isNull())
        icon = State_Icon(state, palette_);
    return icon;
}

bool Video_List_Model::Render()
{
    if (stamp_ == list_.Stamp)
        return false;
    const std::uint64_t since = stamp_;
    stamp_ = list_.Stamp;
    const bool as_ever = list_.Filled <= since;
    // A row that changed may come under another chip now, or have another place.
    const bool narrowed = list_.Chip != Video_Chip::All || !list_.Filter.isEmpty() || list_.Sorted_By;
    const bool look = !as_ever || (narrowed && list_.Turned > since);
    std::vector<int> shown = look ? Shown_Rows(list_) : shown_;
    if (as_ever && shown == shown_) {
        Tell_Changes(since);
        return false;
    }
    beginResetModel();
    shown_ = std::move(shown);
    rows_.assign(list_.Rows.size(), -1);
    for (std::size_t row = 0; row < shown_.size(); ++row)
        rows_[static_cast<std::size_t>(shown_[row])] = static_cast<int>(row);
    endResetModel();
    return true;
}

/// One signal for each stretch of rows that changed.
void Video_List_Model::Tell_Changes(std::uint64_t since)
{
    const int rows = rowCount();
    for (int first = 0; first < rows; ++first) {
        if (Row(first).Stamp <= since)
            continue;
        int last = first;
        while (last + 1 < rows && Row(last + 1).Stamp > since)
            ++last;
        emit dataChanged(index(first, 0), index(last, Columns - 1));
        first = last;
    }
}

int Video_List_Model::Row_Of(int number) const
{
    return number < 0 || static_cast<std::size_t>(number) >= rows_.size() ? -1
                                                                          : rows_[static_cast<std::size_t>(number)];
}

int Video_List_Model::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int Video_List_Model::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

static bool Is_Figure(Video_Column column)
{
    return column == Video_Column::Length || column == Video_Column::Size;
}

static QVariant Alignment_Of(Video_Column column)
{
    return Is_Figure(column) ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
}

/// Figures at the right of their column would touch the words of the next one.
static QString Beside_Words(const QString& text, Video_Column column)
{
    return Is_Figure(column) && !text.isEmpty() ? text + QString(2, QChar::Nbsp) : text;
}

QVariant Video_List_Model::data(const QModelIndex& index, int role) const
{
    if (static_cast<std::size_t>(Number_Of(index.row())) >= list_.Rows.size())
        return {}; // until the next Render
    const Video_Row& row = Row(index.row());
    const auto column = static_cast<Video_Column>(index.column());
    const Video_State state = Shown_State(row, list_.Takes_Ticks);
    switch (role) {
    case Qt::DisplayRole:
        return Beside_Words(Cell_Text(row, column, list_.Takes_Ticks), column);
    case Qt::ToolTipRole:
        return Literal_Tool_Tip(Cell_Hint(row, column)).replace(u'\n', u"<br>"_s);
    case Qt::DecorationRole:
        return column == Video_Column::State ? Icon_Of(state) : QVariant();
    case Qt::CheckStateRole:
        return column == Video_Column::Video && list_.Takes_Ticks ? (row.Ticked ? Qt::Checked : Qt::Unchecked)
                                                                  : QVariant();
    case Qt::TextAlignmentRole:
        return Alignment_Of(column);
    case Qt::ForegroundRole:
        if (column != Video_Column::State && column != Video_Column::Result)
            return {};
        if (state == Video_State::Failed)
            return bad_;
        if (state == Video_State::Warning || !row.Problems.isEmpty())
            return odd_;
        return state == Video_State::Done && column == Video_Column::State ? good_ : QVariant();
    default:
        return {};
    }
}

bool Video_List_Model::setData(const QModelIndex& index, const QVariant&, int role)
{
    if (role != Qt::CheckStateRole)
        return false;
    emit Tick_Clicked(Number_Of(index.row()));
    return true;
}

QVariant Video_List_Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::TextAlignmentRole))
        return {};
    const auto column = static_cast<Video_Column>(section);
    return role == Qt::TextAlignmentRole ? Alignment_Of(column) : Beside_Words(Column_Head(column), column);
}

Qt::ItemFlags Video_List_Model::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    const bool tick = index.isValid() && static_cast<Video_Column>(index.column()) == Video_Column::Video;
    return tick && list_.Takes_Ticks ? flags | Qt::ItemIsUserCheckable : flags;
}
