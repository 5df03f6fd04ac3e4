#pragma once

#include "state/video_list.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QPalette>
#include <array>

/// The rows of the list that are shown, in the order in which they are: a view of the record, with no copy of it.
class Video_List_Model : public QAbstractTableModel
{
    Q_OBJECT

  public:
    explicit Video_List_Model(const Video_List& list, QObject* parent = nullptr);

    /// Brings the view in step with the record; cheap where nothing changed. True if rows came or went.
    bool Render();
    /// Pictures and colours of a palette.
    void Set_Looks(const QPalette& palette);

    /// The number that a shown row has in the record.
    int Number_Of(int row) const { return shown_[static_cast<std::size_t>(row)]; }

    /// The shown row of that number; -1 if it isn't shown.
    int Row_Of(int number) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  signals:
    /// The tick box of a row was clicked.
    void Tick_Clicked(int number);

  private:
    const Video_Row& Row(int row) const { return list_.Rows[static_cast<std::size_t>(Number_Of(row))]; }

    const QIcon& Icon_Of(Video_State state) const;
    void Tell_Changes(std::uint64_t since);

    const Video_List& list_;
    std::vector<int> shown_; ///< numbers in the record
    std::vector<int> rows_;  ///< by number: the shown row, or -1
    std::uint64_t stamp_ = 0;
    QPalette palette_;
    mutable std::array<QIcon, 8> icons_; ///< by Video_State; drawn when first asked for, not ahead of the first picture
    QColor good_;
    QColor odd_;
    QColor bad_;
};
