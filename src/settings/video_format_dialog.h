#pragma once

#include "support/controls.h"

#include <QString>
#include <QStringList>
#include <cstdint>

struct Program;

/// The nine aspect ratios, "NONE" first. The box takes others too.
const QStringList& Aspect_Ratio_List();

/// frm_VideoFormatOptions: an aspect ratio or a display size. Opened and ended by Show_Video_Format_Dialog; the view
/// renders the record, puts what is typed into its boxes, and closes once Visible is False.
struct Video_Format_Form
{
    Option_Pair opt_AspectRatio; ///< 1 "Aspect Ratio:", 2 "Display width/height:"
    Combo_Box cbo_AspectRatio{.Items = Aspect_Ratio_List(), .Text = {}};
    Panel pic_WidthHeight; ///< holds the two boxes
    Text_Box txt_Width;
    Text_Box txt_Height;
    std::int16_t Saved_Kind = 0;
    QString Saved_Value;
    bool Saved_Usable = false;
    bool Visible = false;
};

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
