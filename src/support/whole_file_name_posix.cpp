#include "support/whole_file_name.h"

#include "support/paths.h"

#include <QFile>
#include <QUuid>

using namespace Qt::StringLiterals;

/// QSaveFile writes to a name that is longer by seven bytes, which not every name has room for.
QString Name_To_Write_Under(const QString& path)
{
    constexpr qsizetype longest_name = 255 - 7;
    if (QFile::encodeName(File_Name_Of(path)).size() <= longest_name)
        return path;
    return path.left(path.lastIndexOf(Path_Separator) + 1) + u".vantorra-"_s +
           QUuid::createUuid().toString(QUuid::Id128).left(12);
}
