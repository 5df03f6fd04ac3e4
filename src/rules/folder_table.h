#pragma once

#include "rules/folder_changes.h"
#include "state/program.h"

#include <array>

/// What belongs together of one folder: the table behind folders and folder_changes, no business of others.

/// The source or the target.
struct Main_Folder
{
    QString Word; ///< for Check_Paths
    QString JobOptions::*Path;
    Label Main_Form::*Shown;
    Label Main_Form::*Fault;
    QStringList Settings_State::*Recent;
    int Error_Code;
    QString Title; ///< of the folder picker
};

/// The folder of external audio, subtitle or chapter files.
struct Companion_Folder
{
    QString Word; ///< for Check_Paths
    QString JobOptions::*Path;
    Label Main_Form::*Shown;
    Label Main_Form::*Fault;
    Label Main_Form::*Empty;
    Check_Box JobOptions::*Box; ///< brings the panel into view
    Panel Main_Form::*Frame;
    int Error_Code;
    QString Title; ///< of the folder picker
};

const Main_Folder& Videos_Folder();
const Main_Folder& Target_Folder();
/// Audio, subtitles, chapters.
const std::array<Companion_Folder, 3>& Companion_Folders();
/// That of the box, which is neither the source's nor the target's.
const Companion_Folder& Companion_Folder_Of(Folder_Box box);
