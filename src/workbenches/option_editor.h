#pragma once

#include "state/option_editor_state.h"
#include "support/operator.h"

#include <QString>
#include <array>
#include <vector>

struct Program;

/// Set the editor up for one kind of file, show it modally, and take its sticky values and place back. False, without
/// opening, if the alternate folder's box is on and that folder isn't set. `folder_hint` is "NOP" and ignored.
bool Open_Audio_Option_Editor(Program& program, const QString& folder_hint);
bool Open_Subtitle_Option_Editor(Program& program, const QString& folder_hint);

/// The first activation of an opening: combos, boxes, scan, focus on btn_Close.
void Activate_Option_Editor(Program& program);
/// Fills the three drop-downs' lines.
void Load_Language_Combos(Program& program);

/// Lists the folder anew: Rows, the list, and the selection as far as its rows are still there. An unset or vanished
/// folder leaves an empty list. A row with marks stays, with them, whatever has become of its files.
void Scan_Option_Folder(Program& program);
/// The same behind a command that wrote option files: the selected rows stay selected wherever they stand now, and what
/// was typed into the boxes stays there.
void List_Again(Program& program);
/// The operator asks for the folder to be listed anew; what isn't applied yet is asked for ahead of it.
void lbl_PickFile_Click(Program& program);
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
/// 53 or its like if an option file can't be read; while rows are marked a box tells so, and nothing is selected.
void lvw_Files_Selection_Change(Program& program, std::vector<int> selected);
/// What all records agree on. The first one's comments stay only if it is alone.
OptionRecord Merge_Selected_Records(const std::vector<OptionRecord>& records);
/// Empties and greys each box that isn't sticky.
void Blank_Boxes(Option_Editor& editor);
/// Blank_Boxes, then the fields of Current_Options into the boxes that aren't sticky.
void Show_Option_Record(Option_Editor& editor);
/// What is kept of a text that was typed for a slot: one line, and for a flag only "yes" and "no".
QString Text_For_Slot(Option_Slot slot, const QString& text);
/// What a grey box says in place of a text: an apply on one row takes it as empty, one on several leaves their values.
QString Grey_Box_Note(const Option_Editor& editor);
/// Copies each set box to Current_Options and empties its comments.
void Read_Boxes(Option_Editor& editor);

/// The path that a row's option file has, or will have.
QString Option_Path(const Option_Editor& editor, const OptionFileRow& row);
/// The box for an option file that has nothing to say any more and that the trash didn't take.
Message_Box Still_There_Box(const QString& path);

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
void OptionsFiles_img_FontReset(Option_Editor& editor, std::int16_t main_form_size);

/// The boxes take the sticky values; boxes that aren't sticky are emptied.
void Load_The_Boxes(Option_Editor& editor);
/// The sticky values take the boxes; a sticky box whose text is blank is turned off.
void Save_The_Boxes(Option_Editor& editor);
/// btn_Close and the form's own close: keeps the sticky values and the place. What isn't applied yet is asked for ahead
/// of it, by May_Leave_Marks.
void Close_Option_Editor(Program& program, const WindowBox& place);
