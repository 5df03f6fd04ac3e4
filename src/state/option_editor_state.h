#pragma once

#include "options/option_file.h"
#include "state/settings_state.h"
#include "support/controls.h"

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <vector>

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
