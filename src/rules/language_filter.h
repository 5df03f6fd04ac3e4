#pragma once

#include "state/dialogs.h"
#include "state/job_options.h"

#include <QString>
#include <QStringList>
#include <array>

struct Program;

/// Fills the lists from the working filter and the language table.
void Open_Language_Filter(Program& program);

/// A click on the line at `index` of lst_LanguageList moves it to the selection, if that holds fewer than ten lines.
void lst_LanguageList_Click(Program& program, int index);
/// A click on the line at `index` of lst_LanguageSelection moves it back.
void lst_LanguageSelection_Click(Program& program, int index);
/// A click on the line at `index` of lst_Found takes the language into the selection, or out of it.
void lst_Found_Click(Program& program, int index);
/// What the line at `index` of lst_Found says: "German (ger) - 23 of 24".
QString Found_Text(const Language_Filter_Form& form, int index);
bool Is_Selected(const Language_Filter_Form& form, int index);

/// Something was typed into txt_Find.
void txt_Find_Change(Program& program, const QString& text);
/// True for a line of lst_LanguageList that holds what is looked for, in any case, or whose code that is.
bool Is_Looked_For(const Program& program, const QString& line);
/// Return in txt_Find takes the language of that code into the selection, else the first line that is shown. False if
/// nothing is looked for.
bool txt_Find_Return(Program& program);

/// "Keeps only the audio tracks in English (eng), Japanese (jpn); a right click opens the list.": the tool tip of a box
/// that applies a filter with languages; empty for one without. `tracks`: "audio" or "subtitle".
QString Filter_Tip(const FilterSettings& filter, const QString& tracks);

/// A click on option 0 or 1.
void opt_CustomFilter_Click(Program& program, int index);

void btn_CustomClear_Click(Program& program);
void btn_CustomFilter_Done_Click(Program& program);
void btn_CustomFilter_Cancel_Click(Program& program);
