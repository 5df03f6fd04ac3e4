#pragma once

#include "support/controls.h"

#include <QString>

struct Program;

/// frm_CustomTitle: the custom title of the file or of the video track. Opened and ended by Ask_Custom_Title; the view
/// renders the record, puts what is typed into txt_CustomTitle, and closes once Visible is False.
struct Custom_Title_Form
{
    QString Title_Form_Caption; ///< the form's caption
    QString Title_Form_Text;    ///< the title, in and out
    QString Saved_Title;
    Text_Box txt_CustomTitle;
    QString Focus;
    bool Visible = false;
};

/// Shows the form until it is closed. The title it leaves; `title` itself after Cancel or any other way to close.
QString Ask_Custom_Title(Program& program, const QString& caption, const QString& title);

void btn_CustomTitle_Clear_Click(Custom_Title_Form& form);
void btn_CustomTitle_Done_Click(Custom_Title_Form& form);
void btn_CustomTitle_Cancel_Click(Custom_Title_Form& form);
