#include "life/app_folder.h"

#include "support/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

App_Folder_Places App_Folder_Places_Of_This_Process(const QString& asked_for)
{
    return {asked_for, qEnvironmentVariable("VANTORRA_HOME"), QCoreApplication::applicationDirPath(),
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)};
}

static QString Absolute_Folder(const QString& folder)
{
    return With_Separator(QDir::cleanPath(QDir(folder).absolutePath()));
}

QString Choose_App_Folder(const App_Folder_Places& places)
{
    if (!places.Asked_For.isEmpty())
        return Absolute_Folder(places.Asked_For);
    if (!places.From_Environment.isEmpty())
        return Absolute_Folder(places.From_Environment);
    if (!places.Executable_Folder.isEmpty() &&
        File_Exists(With_Separator(places.Executable_Folder) + Settings_File_Name))
        return Absolute_Folder(places.Executable_Folder);
    return Absolute_Folder(With_Separator(places.Data_Home) + u"vantorra"_s);
}
