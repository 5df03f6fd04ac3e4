#pragma once

#include "state/dialogs.h"

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
/// A click on option 0 or 1.
void opt_CustomFilter_Click(Program& program, int index);

void btn_CustomClear_Click(Program& program);
void btn_CustomFilter_Done_Click(Program& program);
void btn_CustomFilter_Cancel_Click(Program& program);
