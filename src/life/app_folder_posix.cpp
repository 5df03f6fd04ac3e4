#include "life/app_folder.h"
#include "support/paths.h"

#include <QCoreApplication>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

App_Folder_Places App_Folder_Places_Of_This_Process(const QString& asked_for)
{
    const QString data_home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {asked_for, qEnvironmentVariable("VANTORRA_HOME"), QCoreApplication::applicationDirPath(),
            With_Separator(data_home) + u"vantorra"_s};
}

bool Is_Home_Of_Settings(const QString& folder)
{
    return File_Exists(With_Separator(folder) + Settings_File_Name);
}
