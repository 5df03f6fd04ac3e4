#include "forms/option_files_model.h"

#include "forms/looks.h"
#include "workbenches/option_cells.h"

using namespace Qt::StringLiterals;

Option_Files_Model::Option_Files_Model(Option_Editor& editor, QObject* parent)
    : QAbstractTableModel(parent), editor_(editor)
{}

void Option_Files_Model::Set_Looks(const QPalette& palette)
{
    mark_ = Mark_Colour(palette);
    fault_ = Fault_Colour(palette);
}

void Option_Files_Model::Render()
{
    if (list_stamp_ == editor_.List_Stamp && cells_stamp_ == editor_.Cells_Stamp)
        return;
    const bool other_rows = shown_ != editor_.Shown || rows_.size() != editor_.lvw_Files.size();
    list_stamp_ = editor_.List_Stamp;
    cells_stamp_ = editor_.Cells_Stamp;
    if (!other_rows) {
        if (!shown_.empty())
            emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    shown_ = editor_.Shown;
    rows_.assign(editor_.lvw_Files.size(), -1);
    for (std::size_t row = 0; row < shown_.size(); ++row)
        rows_[static_cast<std::size_t>(shown_[row])] = static_cast<int>(row);
    endResetModel();
}

int Option_Files_Model::Row_Of(int number) const
{
    return number < 0 || static_cast<std::size_t>(number) >= rows_.size() ? -1
                                                                          : rows_[static_cast<std::size_t>(number)];
}

int Option_Files_Model::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int Option_Files_Model::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Option_Column_Count;
}

static Option_Slot Slot_Of(int column)
{
    return static_cast<Option_Slot>(column - First_Value_Column);
}

QVariant Option_Files_Model::Name_Data(const OptionFileRow& row, int column, int role) const
{
    const QString& name = column == File_Column ? row.FileName : row.OptionFileName;
    if (role == Qt::DisplayRole)
        return QString(name).replace(u'\n', u' '); // a row is one line high
    if (role == Qt::ToolTipRole)
        return Literal_Tool_Tip(name);
    return {};
}

QVariant Option_Files_Model::Value_Data(int number, Option_Slot slot, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return Cell_Caption(editor_, number, slot);
    case Qt::EditRole:
        return Cell_Value(editor_, number, slot);
    case Qt::ToolTipRole:
        return Literal_Tool_Tip(Cell_Note(editor_, number, slot)).replace(u'\n', u"<br>"_s);
    case Qt::AccessibleDescriptionRole:
        return Is_Marked(editor_, number, slot) ? Cell_Note(editor_, number, slot) : QVariant();
    case Qt::ForegroundRole:
        if (!Cells_Of(editor_, number).Fault.isEmpty())
            return fault_;
        return Is_Marked(editor_, number, slot) ? QVariant(mark_) : QVariant();
    default:
        return {};
    }
}

QVariant Option_Files_Model::data(const QModelIndex& index, int role) const
{
    const auto number = static_cast<std::size_t>(Number_Of(index.row()));
    if (number >= editor_.lvw_Files.size())
        return {}; // until the next Render
    return index.column() < First_Value_Column ? Name_Data(editor_.lvw_Files[number], index.column(), role)
                                               : Value_Data(static_cast<int>(number), Slot_Of(index.column()), role);
}

bool Option_Files_Model::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole)
        return false;
    emit Typed(Number_Of(index.row()), Slot_Of(index.column()), value.toString());
    return true;
}

QVariant Option_Files_Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const QStringList heads = {tr("File"),    tr("Options File"), tr("Title"), tr("Language"),
                                      tr("Default"), tr("Forced"),       tr("Delay")};
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? heads.value(section) : QVariant();
}

Qt::ItemFlags Option_Files_Model::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    if (!index.isValid() || index.column() < First_Value_Column ||
        static_cast<std::size_t>(Number_Of(index.row())) >= editor_.Cells.size())
        return flags;
    return Cells_Of(editor_, Number_Of(index.row())).Fault.isEmpty() ? flags | Qt::ItemIsEditable : flags;
}

void Option_Files_Model::sort(int column, Qt::SortOrder order)
{
    emit Sorted(column, order == Qt::DescendingOrder);
}
