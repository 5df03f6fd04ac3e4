#include "workbenches/option_marks.h"

#include "state/program.h"
#include "support/failure_box.h"
#include "support/run_time_error.h"
#include "support/text.h"
#include "workbenches/option_cells.h"
#include "workbenches/option_editor.h"
#include "workbenches/option_list.h"
#include "workbenches/option_steps.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString File_Count(std::size_t count)
{
    return QString::number(count) + (count == 1 ? u" file"_s : u" files"_s);
}

std::size_t Count_Marked(const Option_Editor& editor)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(editor.Cells, [](const Option_Cells& cells) { return Is_Marked(cells); }));
}

void Tell_Marks(Option_Editor& editor, const QString& done)
{
    const std::size_t marked = Count_Marked(editor);
    std::size_t shown = 0;
    for (const int item : editor.Shown)
        shown += Is_Marked(editor.Cells[static_cast<std::size_t>(item)]) ? 1 : 0;
    QStringList said;
    if (!done.isEmpty())
        said += done;
    if (marked > 0)
        said += File_Count(marked) + u" not applied yet"_s;
    if (shown < marked)
        said += u"%1 of them hidden by the filter"_s.arg(marked - shown);
    editor.lbl_Marks.Caption = said.join(u", "_s);
}

/// What stood in the way of some rows: the box for the first of them.
struct Apply_Failures
{
    std::optional<Message_Box> First;
    std::size_t Count = 0;

    void Add(const Message_Box& box)
    {
        ++Count;
        if (!First)
            First = box;
    }
};

/// Writes one row's marks; they are gone if that went well. Deliberate: the file is written whole, so one without a
/// value left goes to the trash.
static void Apply_Row(Program& program, int item, Option_Step& step, Apply_Failures& failures)
{
    Option_Editor& editor = program.Option_Files;
    Option_Cells& cells = editor.Cells[static_cast<std::size_t>(item)];
    const QString path = Option_Path(editor, editor.lvw_Files[static_cast<std::size_t>(item)]);
    Option_Write_Status status = Option_Write_Status::Nothing_To_Write;
    try {
        OptionRecord record;
        Load_Option_Record(path, record);
        Option_Values values = Values_Of(record);
        for (std::size_t slot = 0; slot < Option_Slot_Count; ++slot)
            values[slot] = cells.Marks[slot].value_or(values[slot]);
        Write_Noted(path, step, [&] { status = Write_Option_File(path, values, program.Logs.Log_Faults); });
    } catch (const Run_Time_Error& error) {
        failures.Add(Failure_Box(u"The options file was not written."_s, error,
                                 u"The file stays as it was, and its row stays marked. Make its folder writable, make "
                                 "room on the disk, then apply again."_s));
        return;
    }
    if (status == Option_Write_Status::Not_Recycled) {
        failures.Add(Still_There_Box(path));
        return;
    }
    cells = {};
}

bool Apply_Marks(Program& program)
{
    Option_Editor& editor = program.Option_Files;
    const std::size_t marked = Count_Marked(editor);
    if (marked == 0)
        return true;
    Option_Step step;
    Apply_Failures failures;
    for (int item = 0; item < static_cast<int>(editor.Cells.size()); ++item)
        if (Is_Marked(editor.Cells[static_cast<std::size_t>(item)]))
            Apply_Row(program, item, step, failures);
    Keep_Step(editor, std::move(step));
    List_Again(program);
    Tell_Marks(editor, u"Applied to "_s + File_Count(marked - failures.Count));
    if (failures.Count == 0)
        return true;
    Message_Box& box = *failures.First;
    if (failures.Count > 1)
        box.Text += Line_Break + Line_Break + u"The same holds for %1 more."_s.arg(File_Count(failures.Count - 1));
    program.Person.Show_Message(box);
    return false;
}

void Discard_Marks(Option_Editor& editor, bool all)
{
    const auto discard = [](Option_Cells& cells) { cells.Marks = {}; };
    if (all)
        std::ranges::for_each(editor.Cells, discard);
    else
        for (const int item : editor.Selection)
            discard(editor.Cells[static_cast<std::size_t>(item)]);
    ++editor.Cells_Stamp;
    Tell_Marks(editor);
}

bool May_Leave_Marks(Program& program)
{
    Option_Editor& editor = program.Option_Files;
    const std::size_t marked = Count_Marked(editor);
    if (marked == 0 || program.Form.Asked_To_Go || program.Form.Display_Lost)
        return true;
    const Message_Answer answer = program.Person.Show_Message(
        {.Title = u"Not applied yet"_s,
         .Text = u"What was typed into the list isn't written yet: "_s + File_Count(marked) + u"."_s,
         .Buttons = Message_Buttons::Apply_Discard_Stay});
    if (answer == Message_Answer::Ok)
        return Apply_Marks(program);
    if (answer == Message_Answer::Discard)
        Discard_Marks(editor, true);
    return answer == Message_Answer::Discard;
}
