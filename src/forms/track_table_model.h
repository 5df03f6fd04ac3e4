#pragma once

#include "workbenches/track_table.h"

#include <QAbstractTableModel>
#include <QPalette>

/// The tracks of the videos as a table view shows them: a view of the record, without a copy.
class Track_Table_Model : public QAbstractTableModel
{
    Q_OBJECT

  public:
    Track_Table_Model(const Track_Table& table, QObject* parent) : QAbstractTableModel(parent), table_(table) {}

    /// Brings the view in step with the record; true if the table was filled anew.
    bool Render(const QPalette& palette);

    /// The row ahead of or behind `from` in which something differs, past the end from the other side; -1: none.
    int Next_Difference(int from, bool back) const;

    /// Words about a video, which need more than the width of their column.
    bool Is_Words(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const Track_Row& Row(int row) const { return table_.Rows[static_cast<std::size_t>(row)]; }

    const Track_Table& table_;
    std::uint64_t stamp_ = 0;
    int rows_ = 0;
    QPalette palette_;
};
