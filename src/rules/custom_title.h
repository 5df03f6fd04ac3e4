#pragma once

#include "state/dialogs.h"

#include <QString>

struct Program;

/// Shows the form until it is closed. The title it leaves; `title` itself after Cancel or any other way to close.
QString Ask_Custom_Title(Program& program, const QString& caption, const QString& title);

void btn_CustomTitle_Clear_Click(Custom_Title_Form& form);
void btn_CustomTitle_Done_Click(Custom_Title_Form& form);
void btn_CustomTitle_Cancel_Click(Custom_Title_Form& form);
