#pragma once

#include "state/dialogs.h"

#include <QString>
#include <QStringList>
#include <cstdint>

struct Program;

/// The nine aspect ratios, "NONE" first. The box takes others too.
const QStringList& Aspect_Ratio_List();

/// Shows the form until it is closed; chk_VideoFormatOptions is then enabled if the format is usable.
void Show_Video_Format_Dialog(Program& program);

/// What the form shows at its opening.
void Open_Video_Format_Dialog(Program& program);
/// A click on item 1 or 2.
void opt_AspectRatio_Click(Program& program, int item);
/// What may be typed into cbo_AspectRatio, and into txt_Width and txt_Height; all other keys are dropped.
bool Aspect_Key_Allowed(QChar key);
bool Size_Key_Allowed(QChar key);
void btn_VideoFormat_Done_Click(Program& program);
void btn_VideoFormat_Cancel_Click(Program& program);
