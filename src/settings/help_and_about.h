#pragma once

#include "support/controls.h"

#include <QString>
#include <QStringList>

struct Program;

/// Help and the About box, two small services of the main form.

/// frm_Splash, the About box: shown without waiting, and gone by itself after seven ticks.
struct About_Form
{
    Label lbl_Version;
    Label lblProductName;
    Label lbl_Author;
    Label lblCompany;
    Label lbl_Countdown;
    bool Timer1_Running = false; ///< the view calls Tick_About_Box every 1000 milliseconds while this is True
    bool Visible = false;        ///< the view hides the form once this is False
};

/// Opens the help file with the desktop's program for it, or says that there is none.
void mnu_Help_Click(Program& program);

/// The help file: of the places where an installation may have it, the first that has; else the one in App_Folder.
QString Find_Help_File(const QString& app_folder, const QStringList& other_folders);

/// Shows the About box.
void mnu_AboutProgram_Click(Program& program);
/// The About box was activated for the first time: the countdown begins.
void Activate_About_Box(Program& program);
/// One tick of its timer.
void Tick_About_Box(Program& program);
/// A click on it, or another form came to the front.
void Close_About_Box(Program& program);
