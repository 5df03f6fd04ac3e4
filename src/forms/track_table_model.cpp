#include "forms/track_table_model.h"

#include "forms/looks.h"

bool Track_Table_Model::Render(const QPalette& palette)
{
    if (palette_ != palette) {
        palette_ = palette;
        if (rows_ > 0)
            emit dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1), {Qt::ForegroundRole});
    }
    if (stamp_ == table_.Stamp)
        return false;
    beginResetModel();
    stamp_ = table_.Stamp;
    rows_ = static_cast<int>(table_.Rows.size());
    endResetModel();
    return true;
}

int Track_Table_Model::Next_Difference(int from, bool back) const
{
    if (from < 0 && back)
        from = 0;
    for (int step = 1; step <= rows_; ++step) {
        const int row = (from + (back ? -step : step) + 2 * rows_) % rows_;
        if (Row(row).Differs.any() || Row(row).What == Track_Row::Kind::Why_Not)
            return row;
    }
    return -1;
}

bool Track_Table_Model::Is_Words(int row) const
{
    return Row(row).What != Track_Row::Kind::Track;
}

int Track_Table_Model::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : rows_;
}

int Track_Table_Model::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(Track_Column_Count);
}

QVariant Track_Table_Model::data(const QModelIndex& index, int role) const
{
    if (static_cast<std::size_t>(index.row()) >= table_.Rows.size() || stamp_ != table_.Stamp)
        return {}; // until the next Render
    const Track_Row& row = Row(index.row());
    const auto column = static_cast<Track_Column>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return Cell_Text(table_, row, column);
    case Qt::ToolTipRole:
        return Literal_Tool_Tip(Cell_Hint(table_, row, column));
    case Qt::AccessibleTextRole:
        return Cell_Hint(table_, row, column);
    case Qt::ForegroundRole:
        if (row.What == Track_Row::Kind::Why_Not)
            return Fault_Colour(palette_);
        if (row.Differs[static_cast<std::size_t>(index.column())] || row.What == Track_Row::Kind::Note)
            return Mark_Colour(palette_);
        return {};
    default:
        return {};
    }
}

QVariant Track_Table_Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return Column_Head(static_cast<Track_Column>(section));
}
