#pragma once

#include "options/option_file.h"
#include "state/settings_state.h"
#include "support/controls.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

/// One row of the editor's list: a media file and its option file; either may be missing.
struct OptionFileRow
{
    QString FileName;       ///< empty for an option file without a media file
    QString OptionFileName; ///< empty if the media file has none
    friend bool operator==(const OptionFileRow&, const OptionFileRow&) = default;
};

inline constexpr std::size_t Option_Slot_Count = std::tuple_size_v<Option_Values>;

/// The five cells of one item of the list: what its option file says, and what was typed in place of it.
struct Option_Cells
{
    bool Read = false; ///< the option file was looked at: From_File and Fault are known
    Option_Values From_File;
    QString Fault; ///< why the option file can't be read; then nothing can be typed
    std::array<std::optional<QString>, Option_Slot_Count> Marks; ///< typed and not applied yet
};

/// What one apply did to one option file: its bytes before and behind it, nothing where there was no file.
struct Option_Change
{
    QString Path;
    std::optional<QByteArray> Before;
    std::optional<QByteArray> Behind;
};

/// All that one apply has changed, in the order in which it was done.
using Option_Step = std::vector<Option_Change>;

/// The columns of the list; the five of the values follow in the order of Option_Slot.
enum Option_Column : std::uint8_t
{
    File_Column,
    Option_File_Column,
    First_Value_Column
};

inline constexpr int Option_Column_Count = First_Value_Column + static_cast<int>(Option_Slot_Count);

/// One of the five boxes: its text, its state (set, else grey: only a set box takes part in an apply on several rows)
/// and the sticky check box beside it.
struct Option_Box
{
    QString Text;
    bool Set = false;
    bool Sticky = false;
    bool Typed = false; ///< changed by the operator since its rows were selected
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

    std::vector<OptionFileRow> Rows;      ///< all rows of the folder, as scanned
    std::vector<OptionFileRow> lvw_Files; ///< the list's items, in the order shown
    std::vector<Option_Cells> Cells;      ///< by item of lvw_Files
    std::vector<int> Shown;               ///< items that the filter lets through, in the order of the head
    QString Filter;                       ///< part of a name, or masks with "*" and "?"
    int Sorted_By = File_Column;          ///< an Option_Column, or a slot behind First_Value_Column
    bool Descending = false;
    std::uint64_t List_Stamp = 0;             ///< grows with each change of lvw_Files or Shown
    std::uint64_t Cells_Stamp = 0;            ///< grows with each change of a cell
    std::vector<Option_Step> Steps;           ///< what can be taken back, the newest at the end
    Label lbl_Marks;                          ///< how many rows are marked; else what the last command did
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
