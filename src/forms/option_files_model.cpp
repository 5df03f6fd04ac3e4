#include "forms/option_files_model.h"

#include "forms/looks.h"
#include "workbenches/option_editor.h"

#include <QObject>

void Option_Files_Model::Show(const std::vector<OptionFileRow>& rows)
{
    if (rows_ == rows)
        return;
    if (rows_.size() == rows.size()) {
        rows_ = rows;
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    rows_ = rows;
    endResetModel();
}

int Option_Files_Model::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int Option_Files_Model::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant Option_Files_Model::data(const QModelIndex& index, int role) const
{
    const OptionFileRow& row = Row(index.row());
    const QString& name = index.column() == 0 ? row.FileName : row.OptionFileName;
    if (role == Qt::DisplayRole)
        return QString(name).replace(u'\n', u' '); // a row is one line high
    if (role == Qt::ToolTipRole)
        return Literal_Tool_Tip(name);
    return {};
}

QVariant Option_Files_Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? tr("File") : tr("Options File");
}

bool Option_Files_Order::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    if (left.column() == 1) {
        const auto& files = static_cast<const Option_Files_Model&>(*sourceModel());
        const QString first = Sort_Keys(files.Row(left.row()))[1];
        const QString second = Sort_Keys(files.Row(right.row()))[1];
        if (first != second)
            return first < second;
    }
    return left.row() < right.row();
}
