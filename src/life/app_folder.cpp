#include "life/app_folder.h"

#include "support/paths.h"

#include <QDir>

static QString Absolute_Folder(const QString& folder)
{
    return With_Separator(QDir::toNativeSeparators(QDir::cleanPath(Absolute_Path(folder))));
}

QString Choose_App_Folder(const App_Folder_Places& places)
{
    if (!places.Asked_For.isEmpty())
        return Absolute_Folder(places.Asked_For);
    if (!places.From_Environment.isEmpty())
        return Absolute_Folder(places.From_Environment);
    if (!places.Executable_Folder.isEmpty() && Is_Home_Of_Settings(places.Executable_Folder))
        return Absolute_Folder(places.Executable_Folder);
    return Absolute_Folder(places.Data_Folder);
}
