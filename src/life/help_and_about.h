#pragma once

#include "state/dialogs.h"

#include <QString>
#include <QStringList>

struct Program;

/// Help and the About box, two small services of the main form.

/// Opens the help file with the desktop's program for it, in a form of our own where the desktop has none, or says that
/// there is no such file.
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
