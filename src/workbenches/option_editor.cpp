#include "workbenches/option_editor.h"

#include "inspect/video_names.h"
#include "state/program.h"
#include "support/failure_box.h"
#include "support/paths.h"
#include "support/text.h"
#include "workbenches/option_cells.h"
#include "workbenches/option_list.h"
#include "workbenches/option_marks.h"
#include "workbenches/option_steps.h"
#include "workbenches/viewer_text_size.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;

static const Option_Editor_Kind Audio_Kind{
    .Audio = true,
    .Media_Masks = u"*.mp3;*.aac;*.ac3;*.m4a;*.mka;*.wav;*.flac;*.ogg;*.dts;*.opus"_s,
    .Option_Masks = u"*.mp3.opt;*.aac.opt;*.ac3.opt;*.m4a.opt;*.mka.opt;*.wav.opt;*.flac.opt;*.ogg.opt;*.dts.opt;"
                    u"*.opus.opt"_s,
    .Media_Count_Text = u"Audio Files found"_s,
    .Option_Count_Text = u"Audio Options Files found"_s,
    .Form_Caption = u"Create and Edit Audio Options Files"_s,
    .Pick_File_Caption = u"Select an Audio File or Options File  (click here to Refresh the List)"_s,
};

// Deliberate: ".idx" stands in the option masks only, so an ".idx" file's option file is a row without a media file.
static const Option_Editor_Kind Subtitle_Kind{
    .Audio = false,
    .Media_Masks = u"*.srt;*.ssa;*.ass;*.sup;*.mks"_s,
    .Option_Masks = u"*.srt.opt;*.ssa.opt;*.ass.opt;*.sup.opt;*.idx.opt;*.mks.opt"_s,
    .Media_Count_Text = u"Subtitle Files found"_s,
    .Option_Count_Text = u"Subtitle Options Files found"_s,
    .Form_Caption = u"Create and Edit Subtitle Options Files"_s,
    .Pick_File_Caption = u"Select a Subtitle File or Options File  (click here to Refresh the List)"_s,
};

/// The mark of a missing name: sorts behind names that begin with a letter.
static const QString Missing_Mark = u"~@@@"_s;

// ---- Opening and closing

static StickyValues& Sticky_Of(Program& program)
{
    return program.Option_Files.Kind.Audio ? program.Settings.Audio_Sticky : program.Settings.Subtitle_Sticky;
}

static WindowBox& Box_Of(Program& program)
{
    return program.Option_Files.Kind.Audio ? program.Settings.AudioOptionFiles_Box
                                           : program.Settings.SubtitleOptionFiles_Box;
}

/// Both open operations. `alternate_on` and `alternate` are the kind's box and its folder.
static bool Open_Editor(Program& program, const Option_Editor_Kind& kind, bool alternate_on, const QString& alternate)
{
    if (alternate_on && alternate.isEmpty())
        return false;
    Option_Editor& editor = program.Option_Files;
    editor.Kind = kind;
    editor.Folder = alternate_on ? alternate : program.Options.Path_Videos;
    editor.Sticky = Sticky_Of(program);
    editor.Box = Box_Of(program);
    editor.Activated = false;
    program.Person.Show_Modal(u"frm_OptionsFiles"_s);
    Sticky_Of(program) = editor.Sticky;
    Box_Of(program) = editor.Box;
    return true;
}

bool Open_Audio_Option_Editor(Program& program, const QString& /*folder_hint*/)
{
    return Open_Editor(program, Audio_Kind, program.Options.chk_AudioPath.Value == 1, program.Options.Path_Audios);
}

bool Open_Subtitle_Option_Editor(Program& program, const QString& /*folder_hint*/)
{
    return Open_Editor(program, Subtitle_Kind, program.Options.chk_SubsPath.Value == 1, program.Options.Path_Subtitles);
}

void Load_Language_Combos(Program& program)
{
    Option_Editor& editor = program.Option_Files;
    editor.cmbo_Language.clear();
    for (const LanguageRow& row : program.Language_Table)
        editor.cmbo_Language += row.Name + u" ("_s + row.Iso639_2 + u')';
    editor.cmbo_Default = {u"no"_s, u"yes"_s};
    editor.cmbo_Forced = editor.cmbo_Default;
}

void Activate_Option_Editor(Program& program)
{
    Option_Editor& editor = program.Option_Files;
    if (editor.Activated)
        return;
    editor.Activated = true;
    editor.Folder = With_Separator(editor.Folder);
    editor.Selected_Indexes.clear();
    editor.lvw_Files.clear(); // with the marks of the last opening
    editor.Cells.clear();
    editor.Filter.clear();
    editor.Steps.clear();
    Load_Language_Combos(program);
    Load_The_Boxes(editor);
    Show_Text_Size(editor.Font_Size, editor.lbl_FontSize);
    Scan_Option_Folder(program);
    editor.Focus = u"btn_Close"_s;
}

void Close_Option_Editor(Program& program, const WindowBox& place)
{
    Option_Editor& editor = program.Option_Files;
    Save_The_Boxes(editor);
    editor.Box = place;
    editor.Activated = false;
}

// ---- The list

/// Names of a folder's files by masks, without the empty entry that stands for "nothing found".
static QStringList Names_By_Masks(Program& program, const QString& folder, const QString& masks)
{
    QStringList names;
    Find_Video_Files(program, folder, masks, names);
    names.removeAll(QString());
    return names;
}

/// Deliberate: rows with marks whose files went away stay; what was typed there isn't lost.
static void Keep_Marked_Rows(const Option_Editor& editor, std::vector<OptionFileRow>& rows)
{
    if (Count_Marked(editor) == 0)
        return;
    QSet<QString> names;
    for (const OptionFileRow& row : rows)
        names += Name_Of_Row(row);
    for (std::size_t item = 0; item < editor.Cells.size(); ++item)
        if (const OptionFileRow& row = editor.lvw_Files[item];
            Is_Marked(editor.Cells[item]) && !names.contains(Name_Of_Row(row)))
            rows.push_back(row);
}

/// Scan_Option_Folder without the selection.
static void List_Option_Folder(Program& program)
{
    Option_Editor& editor = program.Option_Files;
    // Events have their turn while the folder is listed: the rows change all at once.
    std::vector<OptionFileRow> rows;
    if (!editor.Folder.isEmpty()) {
        const QStringList option_names = Names_By_Masks(program, editor.Folder, editor.Kind.Option_Masks);
        QHash<QString, QString> in_other_case;
        for (const QString& name : option_names)
            if (QString& first = in_other_case[name.toLower()]; first.isEmpty())
                first = name;
        QSet<QString> paired;
        for (const QString& name : Names_By_Masks(program, editor.Folder, editor.Kind.Media_Masks)) {
            OptionFileRow row{name, {}};
            const QString own = name + u".opt"_s;
            const bool is_other_name = Case_Of_Names == Qt::CaseSensitive && File_Exists(editor.Folder + own);
            row.OptionFileName = is_other_name ? own : in_other_case.value(own.toLower());
            if (!row.OptionFileName.isEmpty())
                paired += row.OptionFileName;
            rows.push_back(row);
        }
        for (const QString& name : option_names)
            if (!paired.contains(name))
                rows.push_back({{}, name});
    }
    Keep_Marked_Rows(editor, rows);
    editor.Rows = std::move(rows);
    Load_lvw_Files(editor);
}

void Scan_Option_Folder(Program& program)
{
    List_Option_Folder(program);
    Select_lvw_Files(program);
}

void List_Again(Program& program)
{
    Option_Editor& editor = program.Option_Files;
    QSet<QString> selected;
    for (const OptionFileRow& row : editor.Selected_Rows)
        selected += Name_Of_Row(row);
    const auto boxes = editor.Boxes;
    List_Option_Folder(program);
    editor.Selected_Indexes.clear();
    for (std::size_t item = 0; item < editor.lvw_Files.size(); ++item)
        if (selected.contains(Name_Of_Row(editor.lvw_Files[item])))
            editor.Selected_Indexes.push_back(static_cast<int>(item));
    Select_lvw_Files(program);
    for (std::size_t slot = 0; slot < Option_Slot_Count; ++slot)
        if (boxes[slot].Typed)
            editor.Boxes[slot] = boxes[slot];
}

void lbl_PickFile_Click(Program& program)
{
    if (May_Leave_Marks(program))
        Scan_Option_Folder(program);
}

std::vector<int> MergeSort2(const std::vector<std::array<QString, 2>>& table, std::vector<int> rows, std::size_t column)
{
    std::stable_sort(rows.begin(), rows.end(), [&](int one, int other) {
        return table[static_cast<std::size_t>(one)][column] < table[static_cast<std::size_t>(other)][column];
    });
    return rows;
}

std::array<QString, 2> Sort_Keys(const OptionFileRow& row)
{
    return {row.FileName.isEmpty() ? Missing_Mark + row.OptionFileName : row.FileName,
            row.OptionFileName.isEmpty() ? Missing_Mark : row.OptionFileName};
}

void Load_lvw_Files(Option_Editor& editor)
{
    std::vector<std::array<QString, 2>> table;
    table.reserve(editor.Rows.size());
    for (const OptionFileRow& row : editor.Rows)
        table.push_back(Sort_Keys(row));
    std::vector<int> order(table.size());
    std::iota(order.begin(), order.end(), 0);
    order = MergeSort2(table, MergeSort2(table, std::move(order), 1), 0);

    QHash<QString, decltype(Option_Cells::Marks)> marks;
    for (std::size_t item = 0; item < editor.Cells.size(); ++item)
        if (Is_Marked(editor.Cells[item]))
            marks.insert(Name_Of_Row(editor.lvw_Files[item]), editor.Cells[item].Marks);
    editor.lvw_Files.clear();
    editor.lvw_Files.reserve(order.size());
    editor.Cells.assign(order.size(), {});
    for (const int row : order) {
        editor.lvw_Files.push_back(editor.Rows[static_cast<std::size_t>(row)]);
        if (const auto kept = marks.constFind(Name_Of_Row(editor.lvw_Files.back())); kept != marks.constEnd())
            editor.Cells[editor.lvw_Files.size() - 1].Marks = *kept;
    }
    editor.Selection.clear();
    Order_Option_List(editor);
    Tell_Marks(editor);
}

void Select_lvw_Files(Program& program)
{
    const Option_Editor& editor = program.Option_Files;
    std::vector<int> still_there;
    for (const int index : editor.Selected_Indexes)
        if (index < static_cast<int>(editor.lvw_Files.size()) &&
            Passes_Option_Filter(editor.Filter, editor.lvw_Files[static_cast<std::size_t>(index)]))
            still_there.push_back(index);
    lvw_Files_Selection_Change(program, std::move(still_there));
}

// ---- The selection

/// The records of the selected rows; nothing if one of them has no option file.
static std::optional<std::vector<OptionRecord>> Selected_Records(const Option_Editor& editor)
{
    std::vector<OptionRecord> records;
    for (const OptionFileRow& row : editor.Selected_Rows) {
        if (row.OptionFileName.isEmpty())
            return std::nullopt;
        OptionRecord& record = records.emplace_back();
        Load_Option_Record(editor.Folder + row.OptionFileName, record);
    }
    return records;
}

void lvw_Files_Selection_Change(Program& program, std::vector<int> selected)
{
    Option_Editor& editor = program.Option_Files;
    std::sort(selected.begin(), selected.end());
    editor.Selection = selected;
    editor.Selected_Indexes = std::move(selected);
    editor.Selected_Rows.clear();
    for (const int index : editor.Selected_Indexes)
        editor.Selected_Rows.push_back(editor.lvw_Files[static_cast<std::size_t>(index)]);
    editor.Selected_Count =
        Checked_Int16(static_cast<long long>(editor.Selected_Rows.size()), u"Counting the selected files"_s);
    if (editor.Selected_Rows.empty())
        return;

    try {
        if (const auto records = Selected_Records(editor)) {
            editor.Current_Options = Merge_Selected_Records(*records);
            Show_Option_Record(editor);
        } else {
            Blank_Boxes(editor);
        }
    } catch (const Run_Time_Error& error) {
        // Deliberate: the end of the program would take what isn't applied yet with it.
        if (Count_Marked(editor) == 0)
            throw;
        lvw_Files_Selection_Change(program, {});
        Blank_Boxes(editor);
        program.Person.Show_Message(Failure_Box(u"The options file can't be read."_s, error,
                                                u"Its row isn't selected; what isn't applied yet is still there."_s));
    }
}

OptionRecord Merge_Selected_Records(const std::vector<OptionRecord>& records)
{
    struct Field
    {
        QString OptionRecord::*Text;
        Option_Flag Mask;
    };

    static constexpr Field fields[] = {{&OptionRecord::Title, Title_Flag},     {&OptionRecord::Language, Language_Flag},
                                       {&OptionRecord::Default, Default_Flag}, {&OptionRecord::Forced, Forced_Flag},
                                       {&OptionRecord::Delay, Delay_Flag},     {&OptionRecord::Stretch, Stretch_Flag}};
    OptionRecord merged;
    if (records.empty())
        return merged;
    for (const Field& field : fields) {
        const QString& text = records.front().*field.Text;
        const bool agreed = std::all_of(records.begin(), records.end(),
                                        [&](const OptionRecord& record) { return record.*field.Text == text; });
        if (agreed)
            merged.*field.Text = text;
        Set_Option_Flag(merged, field.Mask, agreed && !text.isEmpty());
    }
    if (records.size() == 1)
        merged.Comments = records.front().Comments;
    return merged;
}

// ---- Writing

QString Option_Path(const Option_Editor& editor, const OptionFileRow& row)
{
    return editor.Folder + (row.OptionFileName.isEmpty() ? row.FileName + u".opt"_s : row.OptionFileName);
}

/// The boxes' texts by slot: all five, or only those of set boxes.
static Option_Values Box_Values(const Option_Editor& editor, bool set_only)
{
    Option_Values values;
    for (std::size_t slot = 0; slot < Option_Slot_Count; ++slot)
        if (!set_only || editor.Boxes[slot].Set)
            values[slot] = editor.Boxes[slot].Text;
    return values;
}

Message_Box Still_There_Box(const QString& path)
{
    return {.Title = u"The options file is still there."_s,
            .Text = u"It has nothing to say any more, but the trash didn't take it, so it stays as it was:\r\n\r\n"_s +
                    path + u"\r\n\r\nMake room in the trash and apply again, or delete it."_s,
            .Icon = Message_Icon::Exclamation};
}

static void Tell_Not_Written(Program& program, const Run_Time_Error& error, const QString& advice)
{
    program.Person.Show_Message(Failure_Box(u"The options file was not written."_s, error, advice));
}

/// Several rows at once. Deliberate: a row without an option file gains a name in the list even if nothing is written
/// for it, until the next scan; the list isn't scanned again.
static void Apply_To_Several(Program& program, Option_Step& step)
{
    Option_Editor& editor = program.Option_Files;
    const Option_Values values = Box_Values(editor, true);
    for (std::size_t at = 0; at < editor.Selected_Rows.size(); ++at) {
        OptionFileRow& row = editor.Selected_Rows[at];
        if (row.OptionFileName.isEmpty()) {
            row.OptionFileName = row.FileName + u".opt"_s;
            editor.lvw_Files[static_cast<std::size_t>(editor.Selected_Indexes[at])] = row;
        }
        try {
            const QString path = Option_Path(editor, row);
            Write_Noted(path, step, [&] { Merge_Option_File(path, values); });
        } catch (const Run_Time_Error& error) {
            // What stands in the way of one most likely stands in the way of all: one box, not one a row.
            Tell_Not_Written(program, error,
                             u"This file stays as it was, and those of the rows behind it. Make their folder "
                             "writable, make room on the disk, then apply again."_s);
            Scan_Option_Folder(program);
            return;
        }
    }
}

/// One row: its option file says what the boxes say, and is gone if they say nothing.
static void Apply_To_One(Program& program, Option_Step& step)
{
    const Option_Editor& editor = program.Option_Files;
    const QString path = Option_Path(editor, editor.Selected_Rows.front());
    Option_Write_Status status = Option_Write_Status::Nothing_To_Write;
    try {
        Write_Noted(path, step,
                    [&] { status = Write_Option_File(path, Box_Values(editor, false), program.Logs.Log_Faults); });
    } catch (const Run_Time_Error& error) {
        Tell_Not_Written(program, error,
                         u"The file stays as it was. Make its folder writable, make room on the disk, then apply "
                         "again."_s);
    }
    if (status == Option_Write_Status::Nothing_To_Write)
        return;
    if (status == Option_Write_Status::Not_Recycled)
        program.Person.Show_Message(Still_There_Box(path));
    Scan_Option_Folder(program);
}

void btn_Apply_Click(Program& program)
{
    Option_Editor& editor = program.Option_Files;
    if (editor.Selected_Count == 0)
        return;
    Read_Boxes(editor);
    Option_Step step;
    if (editor.Selected_Count == 1) {
        Apply_To_One(program, step);
    } else {
        Apply_To_Several(program, step);
        for (Option_Cells& cells : editor.Cells)
            cells.Read = false;
        Order_Option_List(editor);
    }
    Keep_Step(editor, std::move(step));
    editor.Focus = u"btn_Close"_s;
}
