#include "workbenches/option_steps.h"

#include "state/program.h"
#include "support/failure_box.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/text.h"
#include "support/trash.h"
#include "support/whole_file.h"
#include "workbenches/option_editor.h"
#include "workbenches/option_marks.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// So many applies can be taken back.
static constexpr std::size_t Most_Steps = 20;

static std::optional<QByteArray> Bytes_If_There(const QString& path)
{
    return File_Exists(path) ? std::optional(Read_File(path)) : std::nullopt;
}

/// False if the file can't be read.
static bool Note_Bytes(const QString& path, std::optional<QByteArray>& bytes)
{
    try {
        bytes = Bytes_If_There(path);
        return true;
    } catch (const Run_Time_Error&) {
        return false;
    }
}

void Write_Noted(const QString& path, Option_Step& step, const std::function<void()>& write)
{
    Option_Change change{.Path = path, .Before = {}, .Behind = {}};
    const bool known = Note_Bytes(path, change.Before);
    write();
    if (known && Note_Bytes(path, change.Behind) && change.Before != change.Behind)
        step.push_back(std::move(change));
}

void Keep_Step(Option_Editor& editor, Option_Step step)
{
    if (step.empty())
        return;
    editor.Steps.push_back(std::move(step));
    if (editor.Steps.size() > Most_Steps)
        editor.Steps.erase(editor.Steps.begin());
}

enum class Undo_Result
{
    Undone,
    Changed_Since,
    Not_Trashed
};

/// Deliberate: the former bytes, also what the editor itself never writes; and nothing over what isn't ours any more.
static Undo_Result Undo(const Option_Change& change, clsStringBuilder& faults)
{
    if (Bytes_If_There(change.Path) != change.Behind)
        return Undo_Result::Changed_Since;
    if (change.Before)
        Write_Whole_File(change.Path, *change.Before);
    else if (!Delete_To_Recycle(change.Path, faults))
        return Undo_Result::Not_Trashed;
    return Undo_Result::Undone;
}

static void Tell_Changed_Since(Program& program, const QStringList& names)
{
    constexpr qsizetype told = 10;
    QString text = names.first(std::min(told, names.size())).join(Line_Break);
    if (names.size() > told)
        text += Line_Break + u"and %1 more"_s.arg(names.size() - told);
    program.Person.Show_Message({.Title = u"Not all options files were taken back."_s,
                                 .Text = u"These were changed by something else since, and stay as they are:"_s +
                                         Line_Break + Line_Break + text});
}

void Undo_Last_Apply(Program& program)
{
    Option_Editor& editor = program.Option_Files;
    if (editor.Steps.empty())
        return;
    Option_Step step = std::move(editor.Steps.back());
    editor.Steps.pop_back();
    QStringList changed_since;
    std::size_t undone = 0;
    std::optional<Message_Box> failure;
    while (!step.empty() && !failure) {
        const Option_Change& change = step.back();
        const QString advice = u"It stays as it is. Make room on the disk and in the trash, make the folder writable, "
                               "then undo again."_s;
        try {
            switch (Undo(change, program.Logs.Log_Faults)) {
            case Undo_Result::Undone:
                ++undone;
                break;
            case Undo_Result::Changed_Since:
                changed_since += As_One_Line(File_Name_Of(change.Path));
                break;
            case Undo_Result::Not_Trashed:
                failure = Message_Box{.Title = u"The options file is still there."_s,
                                      .Text = u"The trash didn't take it:"_s + Line_Break + Line_Break + change.Path +
                                              Line_Break + Line_Break + advice};
                continue;
            }
        } catch (const Run_Time_Error& error) {
            failure = Failure_Box(u"The options file was not taken back."_s, error, advice);
            continue;
        }
        step.pop_back();
    }
    Keep_Step(editor, std::move(step));
    List_Again(program);
    Tell_Marks(editor, u"Taken back: "_s + File_Count(undone));
    if (failure)
        program.Person.Show_Message(*failure);
    if (!changed_since.isEmpty())
        Tell_Changed_Since(program, changed_since);
}
