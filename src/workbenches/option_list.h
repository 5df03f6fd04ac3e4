#pragma once

#include "state/option_editor_state.h"

#include <QString>

struct Program;

/// Which rows of the editor's list are shown, and in which order: its filter field and the heads of its columns.

/// What names a row, whatever becomes of its option file: the media file, else the option file.
const QString& Name_Of_Row(const OptionFileRow& row);

/// True if the filter lets the row through: a text stands in one of its names, masks ("*.en.srt;*.de.srt") fit one as a
/// whole, both without regard to case. A row without a media file goes by the name that this would have, too.
bool Passes_Option_Filter(const QString& filter, const OptionFileRow& row);

/// Shown anew from lvw_Files, Filter, Sorted_By and Descending. By a value's column, rows without that value come last,
/// and delays go by their worth.
void Order_Option_List(Option_Editor& editor);

/// A head was clicked.
void Sort_Option_List(Option_Editor& editor, int column, bool descending);

/// The operator typed a filter. What it hides is selected no more: no command of the boxes reaches what isn't seen.
void Set_Option_Filter(Program& program, const QString& text);

/// "24 of 240 files" while a filter hides some; else empty.
QString Filter_Note(const Option_Editor& editor);
