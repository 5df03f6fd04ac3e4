#include "workbenches/option_cells.h"

#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/text.h"
#include "workbenches/option_editor.h"
#include "workbenches/option_marks.h"

#include <algorithm>

using namespace Qt::StringLiterals;

Option_Cells& Cells_Of(Option_Editor& editor, int item)
{
    Option_Cells& cells = editor.Cells[static_cast<std::size_t>(item)];
    if (cells.Read)
        return cells;
    cells.Read = true;
    cells.From_File = {};
    cells.Fault.clear();
    const OptionFileRow& row = editor.lvw_Files[static_cast<std::size_t>(item)];
    if (row.OptionFileName.isEmpty())
        return cells;
    try {
        OptionRecord record;
        Load_Option_Record(editor.Folder + row.OptionFileName, record);
        cells.From_File = Values_Of(record);
    } catch (const Run_Time_Error& error) {
        cells.Fault = error.In_One_Line();
    }
    return cells;
}

QString Cell_Value(Option_Editor& editor, int item, Option_Slot slot)
{
    const Option_Cells& cells = Cells_Of(editor, item);
    return cells.Marks[slot].value_or(cells.From_File[slot]);
}

QString Cell_Caption(Option_Editor& editor, int item, Option_Slot slot)
{
    const Option_Cells& cells = Cells_Of(editor, item);
    if (!cells.Fault.isEmpty())
        return slot == Title_Slot ? u"(can't be read)"_s : QString();
    if (!cells.Marks[slot])
        return Printable(cells.From_File[slot]);
    return u"\u2022 "_s + (cells.Marks[slot]->isEmpty() ? u"(emptied)"_s : Printable(*cells.Marks[slot]));
}

QString Cell_Note(Option_Editor& editor, int item, Option_Slot slot)
{
    const Option_Cells& cells = Cells_Of(editor, item);
    if (!cells.Fault.isEmpty())
        return cells.Fault;
    if (!cells.Marks[slot])
        return Printable(cells.From_File[slot]);
    return u"Not applied yet: "_s + Printable(*cells.Marks[slot]) + u"\nThe options file says: "_s +
           (cells.From_File[slot].isEmpty() ? u"(nothing)"_s : Printable(cells.From_File[slot]));
}

bool Is_Marked(const Option_Editor& editor, int item, Option_Slot slot)
{
    return editor.Cells[static_cast<std::size_t>(item)].Marks[slot].has_value();
}

bool Is_Marked(const Option_Cells& cells)
{
    return std::ranges::any_of(cells.Marks, [](const auto& mark) { return mark.has_value(); });
}

/// Type_Into_Cell without what the form is told of it.
static void Mark_Cell(Option_Editor& editor, int item, Option_Slot slot, const QString& text)
{
    Option_Cells& cells = Cells_Of(editor, item);
    if (!cells.Fault.isEmpty())
        return;
    if (text == cells.From_File[slot])
        cells.Marks[slot].reset();
    else
        cells.Marks[slot] = text;
}

void Type_Into_Cell(Option_Editor& editor, int item, Option_Slot slot, const QString& text)
{
    Mark_Cell(editor, item, slot, Text_For_Slot(slot, text));
    ++editor.Cells_Stamp;
    Tell_Marks(editor);
}

int Fill_Down(Option_Editor& editor, int item, Option_Slot slot)
{
    std::vector<int> rows(editor.lvw_Files.size(), -1);
    for (std::size_t row = 0; row < editor.Shown.size(); ++row)
        rows[static_cast<std::size_t>(editor.Shown[row])] = static_cast<int>(row);
    const auto row_of = [&](int number) { return rows[static_cast<std::size_t>(number)]; };
    const auto above = [&](int one, int other) { return row_of(one) < row_of(other); };

    std::vector<int> picked = editor.Selection;
    std::ranges::sort(picked, above);
    if (picked.empty())
        return 0;
    // Deliberate: whoever selects with Shift from the top to the bottom ends up at the last row.
    const int source = above(item, picked.back()) ? item : picked.front();
    std::erase_if(picked, [&](int other) { return !above(source, other); });
    const QString value = Cell_Value(editor, source, slot);
    for (const int other : picked)
        Mark_Cell(editor, other, slot, value);
    ++editor.Cells_Stamp;
    Tell_Marks(editor);
    return static_cast<int>(picked.size());
}
