#pragma once

#include <QString>

/// Where the program's folder may be: the settings file, ffprobe and the logs lie in it.
struct App_Folder_Places
{
    QString Asked_For;         ///< --app-folder; empty: not asked
    QString From_Environment;  ///< $VANTORRA_HOME
    QString Executable_Folder; ///< counts if Is_Home_Of_Settings says so
    QString Data_Folder;       ///< $XDG_DATA_HOME/vantorra, or what stands for it; on Windows %APPDATA%\Vantorra
};

/// The places of this process; `asked_for` comes from its command line.
App_Folder_Places App_Folder_Places_Of_This_Process(const QString& asked_for);

/// True for a folder of programs in which the settings are kept, too: one that holds a settings file already; on
/// Windows, where programs have folders of their own, one that may be written.
bool Is_Home_Of_Settings(const QString& folder);

/// The first place that is given, in the order of the record, as an absolute path that ends in a separator. A relative
/// path counts from the current folder.
QString Choose_App_Folder(const App_Folder_Places& places);

/// The name of the settings file in that folder.
inline const QString Settings_File_Name = QStringLiteral("Vantorra.ini");
