#include "workbenches/option_list.h"

#include "state/program.h"
#include "support/paths.h"
#include "support/text.h"
#include "workbenches/option_cells.h"
#include "workbenches/option_editor.h"
#include "workbenches/option_marks.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

const QString& Name_Of_Row(const OptionFileRow& row)
{
    return row.FileName.isEmpty() ? row.OptionFileName : row.FileName;
}

bool Passes_Option_Filter(const QString& filter, const OptionFileRow& row)
{
    constexpr int length_of_opt = 4;
    if (filter.isEmpty())
        return true;
    const bool masks = filter.contains(u'*') || filter.contains(u'?');
    const auto fits = [&](const QString& name) {
        return masks ? Match_File_Masks(name, filter) : name.contains(filter, Qt::CaseInsensitive);
    };
    return fits(row.FileName) || fits(row.OptionFileName) ||
           (row.FileName.isEmpty() && fits(row.OptionFileName.chopped(length_of_opt)));
}

/// What a row is sorted by where a value's column is in charge.
struct Value_Key
{
    bool Missing = true;
    double Number = 0; ///< of a delay
    QString Text;

    friend bool operator<(const Value_Key& one, const Value_Key& other)
    {
        if (one.Missing != other.Missing)
            return other.Missing;
        return one.Number != other.Number ? one.Number < other.Number : one.Text < other.Text;
    }
};

static Value_Key Key_Of_Value(Option_Editor& editor, int item, Option_Slot slot)
{
    Value_Key key{.Text = Cell_Value(editor, item, slot)};
    key.Missing = key.Text.isEmpty();
    if (slot == Delay_Slot)
        Text_To_Number(key.Text, key.Number);
    return key;
}

/// Items are in order of their names already, so only what they are sorted by decides.
template <typename Key, typename Key_Of_Item>
static void Sort_By(std::vector<int>& shown, std::size_t items, Key_Of_Item key_of)
{
    std::vector<Key> keys(items);
    for (const int item : shown)
        keys[static_cast<std::size_t>(item)] = key_of(item);
    std::stable_sort(shown.begin(), shown.end(), [&](int one, int other) {
        return keys[static_cast<std::size_t>(one)] < keys[static_cast<std::size_t>(other)];
    });
}

void Order_Option_List(Option_Editor& editor)
{
    const std::size_t items = editor.lvw_Files.size();
    std::vector<int>& shown = editor.Shown;
    shown.resize(items);
    std::iota(shown.begin(), shown.end(), 0);
    std::erase_if(shown, [&](int item) {
        return !Passes_Option_Filter(editor.Filter, editor.lvw_Files[static_cast<std::size_t>(item)]);
    });
    if (editor.Sorted_By >= First_Value_Column)
        Sort_By<Value_Key>(shown, items, [&](int item) {
            return Key_Of_Value(editor, item, static_cast<Option_Slot>(editor.Sorted_By - First_Value_Column));
        });
    else if (editor.Sorted_By == Option_File_Column)
        Sort_By<QString>(shown, items,
                         [&](int item) { return Sort_Keys(editor.lvw_Files[static_cast<std::size_t>(item)])[1]; });
    if (editor.Descending)
        std::reverse(shown.begin(), shown.end());
    ++editor.List_Stamp;
}

void Sort_Option_List(Option_Editor& editor, int column, bool descending)
{
    editor.Sorted_By = column;
    editor.Descending = descending;
    Order_Option_List(editor);
}

void Set_Option_Filter(Program& program, const QString& text)
{
    Option_Editor& editor = program.Option_Files;
    editor.Filter = text.trimmed();
    Order_Option_List(editor);
    Tell_Marks(editor);
    std::vector<int> selected = editor.Selection;
    std::erase_if(selected, [&](int item) {
        return !Passes_Option_Filter(editor.Filter, editor.lvw_Files[static_cast<std::size_t>(item)]);
    });
    if (selected != editor.Selection)
        lvw_Files_Selection_Change(program, std::move(selected));
}

QString Filter_Note(const Option_Editor& editor)
{
    if (editor.Shown.size() == editor.lvw_Files.size())
        return {};
    return u"%1 of %2 files"_s.arg(editor.Shown.size()).arg(editor.lvw_Files.size());
}
