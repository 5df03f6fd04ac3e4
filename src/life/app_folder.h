#pragma once

#include <QString>

/// Where the program's folder may be: the settings file, ffprobe and the logs lie in it.
struct App_Folder_Places
{
    QString Asked_For;         ///< --app-folder; empty: not asked
    QString From_Environment;  ///< $VANTORRA_HOME
    QString Executable_Folder; ///< counts if a settings file lies there already
    QString Data_Home;         ///< $XDG_DATA_HOME, or what stands for it
};

/// The places of this process; `asked_for` comes from its command line.
App_Folder_Places App_Folder_Places_Of_This_Process(const QString& asked_for);

/// The first place that is given, in the order of the record, as an absolute path that ends in a separator. A relative
/// path counts from the current folder.
QString Choose_App_Folder(const App_Folder_Places& places);

/// The name of the settings file in that folder.
inline const QString Settings_File_Name = QStringLiteral("Vantorra.ini");
