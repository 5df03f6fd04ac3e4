#pragma once

#include "options/option_file.h"
#include "settings/settings_state.h"
#include "support/controls.h"

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <vector>

struct Program;

/// One row of the editor's list: a media file and its option file; either may be missing.
struct OptionFileRow
{
    QString FileName;       ///< empty for an option file without a media file
    QString OptionFileName; ///< empty if the media file has none
    friend bool operator==(const OptionFileRow&, const OptionFileRow&) = default;
};

inline constexpr std::size_t Option_Slot_Count = std::tuple_size_v<Option_Values>;

/// One of the five boxes: its text, its state (set, else grey: only a set box takes part in an apply on several rows)
/// and the sticky check box beside it.
struct Option_Box
{
    QString Text;
    bool Set = false;
    bool Sticky = false;
};

/// What differs between the editor of audio and of subtitle option files.
struct Option_Editor_Kind
{
    bool Audio = true;
    QString Media_Masks;
    QString Option_Masks;
    QString Media_Count_Text;  ///< kept, not shown
    QString Option_Count_Text; ///< kept, not shown
    QString Form_Caption;
    QString Pick_File_Caption;
};

/// frm_OptionsFiles as a record. Lives as long as the program; the two open operations set it up for one kind.
struct Option_Editor
{
    Option_Editor_Kind Kind;
    QString Folder; ///< scanned folder, ending in a separator; empty: not set, nothing is scanned
    bool Activated = false;

    std::vector<OptionFileRow> Rows;          ///< all rows of the folder, as scanned
    std::vector<OptionFileRow> lvw_Files;     ///< the list's items, in the order shown
    std::vector<int> Selection;               ///< what the list shows as selected: item numbers from 0, ascending
    std::vector<int> Selected_Indexes;        ///< the same as kept by the last selection change
    std::vector<OptionFileRow> Selected_Rows; ///< copies of the selected rows, in list order
    std::int16_t Selected_Count = 0;          ///< 0 when nothing usable is selected
    OptionRecord Current_Options;             ///< what the boxes show

    std::array<Option_Box, Option_Slot_Count> Boxes; ///< by Option_Slot
    StickyValues Sticky;
    WindowBox Box;
    QStringList cmbo_Language; ///< one line "Name (code)" a row of the language table
    QStringList cmbo_Default;  ///< "no", "yes"
    QStringList cmbo_Forced;
    QString Focus;               ///< name of the control that the logic gave the focus to
    std::int16_t Font_Size = 10; ///< points of the list's and the boxes' text
    Label lbl_FontSize;

    Option_Box& At(Option_Slot slot) { return Boxes[slot]; }
};

/// Set the editor up for one kind of file, show it modally, and take its sticky values and place back. False, without
/// opening, if the alternate folder's box is on and that folder isn't set. `folder_hint` is "NOP" and ignored.
bool Open_Audio_Option_Editor(Program& program, const QString& folder_hint);
bool Open_Subtitle_Option_Editor(Program& program, const QString& folder_hint);

/// The first activation of an opening: combos, boxes, scan, focus on btn_Close.
void Activate_Option_Editor(Program& program);
/// Fills the three drop-downs' lines.
void Load_Language_Combos(Program& program);

/// Lists the folder anew: Rows, the list, and the selection as far as its rows are still there. An unset or vanished
/// folder leaves an empty list.
void Scan_Option_Folder(Program& program);
/// What the two columns are sorted by: the row's names, and for a missing one a mark that sorts behind names.
std::array<QString, 2> Sort_Keys(const OptionFileRow& row);
/// The list in its order: by media file, then by option file, rows without one of the two behind the others.
void Load_lvw_Files(Option_Editor& editor);
/// The row numbers of `table` sorted ascending by one column's texts, by code unit; stable.
std::vector<int> MergeSort2(const std::vector<std::array<QString, 2>>& table, std::vector<int> rows,
                            std::size_t column);
/// Selects the items whose numbers stand in Selected_Indexes, and runs the selection change once.
void Select_lvw_Files(Program& program);

/// The operator selected the items of these numbers: Selected_Rows, and the boxes show what all of them agree on. Error
/// 53 or its like if an option file can't be read.
void lvw_Files_Selection_Change(Program& program, std::vector<int> selected);
/// What all records agree on. The first one's comments stay only if it is alone.
OptionRecord Merge_Selected_Records(const std::vector<OptionRecord>& records);
/// Empties and greys each box that isn't sticky.
void Blank_Boxes(Option_Editor& editor);
/// Blank_Boxes, then the fields of Current_Options into the boxes that aren't sticky.
void Show_Option_Record(Option_Editor& editor);
/// What a grey box says in place of a text: an apply on one row takes it as empty, one on several leaves their values.
QString Grey_Box_Note(const Option_Editor& editor);
/// Copies each set box to Current_Options and empties its comments.
void Read_Boxes(Option_Editor& editor);

/// Writes the boxes to the selected rows' option files: one row takes all five boxes, several take the set ones.
void btn_Apply_Click(Program& program);

/// The operator changed a box's text.
void Option_Box_Change(Option_Editor& editor, Option_Slot slot, const QString& text);
/// The operator left a box.
void Option_Box_Leave(Option_Editor& editor, Option_Slot slot);
/// Name of the control that Enter moves to from a box; from the last one none.
QString Next_Box(Option_Slot slot);

/// The text size: one more, one less, that of the main form.
void OptionsFiles_img_FontInc(Option_Editor& editor);
void OptionsFiles_img_FontDec(Option_Editor& editor);
void OptionsFiles_img_FontReset(Option_Editor& editor);

/// The boxes take the sticky values; boxes that aren't sticky are emptied.
void Load_The_Boxes(Option_Editor& editor);
/// The sticky values take the boxes; a sticky box whose text is blank is turned off.
void Save_The_Boxes(Option_Editor& editor);
/// btn_Close and the form's own close: keeps the sticky values and the place.
void Close_Option_Editor(Program& program, const WindowBox& place);
