#pragma once

#include "state/option_editor_state.h"

#include <QAbstractTableModel>
#include <QPalette>

/// The rows of the editor's list that are shown, in the order in which they are: a view of the record, which keeps the
/// values. A row's number is that of its item in the record.
class Option_Files_Model : public QAbstractTableModel
{
    Q_OBJECT

  public:
    explicit Option_Files_Model(Option_Editor& editor, QObject* parent = nullptr);

    /// Brings the view in step with the record; cheap where nothing changed. Where other rows are shown than before,
    /// what the table has selected is gone.
    void Render();
    void Set_Looks(const QPalette& palette);

    int Number_Of(int row) const { return shown_[static_cast<std::size_t>(row)]; }

    /// The shown row of that number; -1 if it isn't shown.
    int Row_Of(int number) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order) override;

  signals:
    /// The operator typed into a cell.
    void Typed(int number, Option_Slot slot, const QString& text);
    /// A head was clicked.
    void Sorted(int column, bool descending);

  private:
    QVariant Name_Data(const OptionFileRow& row, int column, int role) const;
    QVariant Value_Data(int number, Option_Slot slot, int role) const;

    Option_Editor& editor_; ///< not const: option files are read when a cell is first seen
    std::vector<int> shown_;
    std::vector<int> rows_; ///< by number: the shown row, or -1
    std::uint64_t list_stamp_ = 0;
    std::uint64_t cells_stamp_ = 0;
    QColor mark_;
    QColor fault_;
};
