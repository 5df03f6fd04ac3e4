#pragma once

#include "state/dialogs.h"

#include <QString>
#include <QStringList>
#include <cstdint>

struct Program;

/// The fourteen frame rates, "NONE" first.
const QStringList& Frame_Rate_List();

/// Shows the form until it is closed; chk_VideoFrameRate is then enabled if the rate is usable.
void Show_Frame_Rate_Dialog(Program& program);

/// What the form shows at its opening.
void Open_Frame_Rate_Dialog(Program& program);
/// A click on item 1 or 2.
void opt_FrameRate_Click(Frame_Rate_Form& form, int item);
void btn_FrameRate_Done_Click(Program& program);
void btn_FrameRate_Cancel_Click(Frame_Rate_Form& form);
