#pragma once

#include "support/controls.h"

#include <QString>
#include <QStringList>
#include <cstdint>

struct Program;

/// The fourteen frame rates, "NONE" first.
const QStringList& Frame_Rate_List();

/// frm_VideoFrameRate. Opened and ended by Show_Frame_Rate_Dialog; the view renders the record, puts the chosen text
/// into cbo_FrameRate.Text, and closes once Visible is False.
struct Frame_Rate_Form
{
    Option_Pair opt_FrameRate; ///< 1 "Use ffprobe discovered Frame Rate", 2 "Select a Frame Rate:"
    Combo_Box cbo_FrameRate{.Items = Frame_Rate_List(), .Text = {}};
    Label lbl_SetFrameRate{.Caption = QStringLiteral("IMPORTANT: See the Help file for instructions on this control.")};
    std::int16_t Working_Kind = 0;
    bool Visible = false;
};

/// Shows the form until it is closed; chk_VideoFrameRate is then enabled if the rate is usable.
void Show_Frame_Rate_Dialog(Program& program);

/// What the form shows at its opening.
void Open_Frame_Rate_Dialog(Program& program);
/// A click on item 1 or 2.
void opt_FrameRate_Click(Frame_Rate_Form& form, int item);
void btn_FrameRate_Done_Click(Program& program);
void btn_FrameRate_Cancel_Click(Frame_Rate_Form& form);
