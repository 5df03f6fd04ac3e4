#pragma once

#include "support/controls.h"

#include <QString>
#include <QStringList>
#include <array>

struct Program;

/// frm_CustomFilter: up to ten languages to cut from, or to keep in, the source's audio or subtitle tracks. It works
/// on Settings.WorkingFilter, which the filter commands fill and take back. The commands open the record before the
/// view shows it and end it afterwards; the view renders it, keeps Place up to date and closes once Visible is False.
/// Neither list shows a selection mark after a click.
struct Language_Filter_Form
{
    QString Caption;
    QStringList lst_LanguageList;      ///< languages not selected, "Name (code)"
    QStringList lst_LanguageSelection; ///< languages selected
    int opt_CustomFilter = 0;          ///< the option chosen: 0 cut, 1 keep
    std::array<QString, 2> opt_CustomFilter_Captions;
    Label lbl_SelLanguages;
    Label lbl_List1Count;
    Label lbl_MaxLanguages{.Caption = QStringLiteral("(10  max)")};
    Form_Place Place;
    bool Has_Place = false; ///< False: centre the form over the main form; True: at Place, within the screen
    bool Visible = false;
};

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
