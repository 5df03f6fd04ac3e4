#pragma once

#include "workbenches/option_editor.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

/// The rows of the editor's list for a table: the media file, its option file.
class Option_Files_Model : public QAbstractTableModel
{
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Takes the rows over; where only texts changed, what the table has selected stays.
    void Show(const std::vector<OptionFileRow>& rows);

    const OptionFileRow& Row(int row) const { return rows_[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    std::vector<OptionFileRow> rows_;
};

/// The same rows in the order of a head that was clicked. The first head's order is the list's own; rows keep the
/// numbers that the rules know them by.
class Option_Files_Order : public QSortFilterProxyModel
{
    Q_OBJECT

  public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

  protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};
