#include "support/whole_file_name.h"

#include "support/paths.h"

#include <QUuid>

using namespace Qt::StringLiterals;

/// QSaveFile's own last step would drop the attributes and rights of the file that is there, and waits for nobody.
QString Name_To_Write_Under(const QString& path)
{
    return path.left(path.lastIndexOf(Path_Separator) + 1) + u".vantorra-"_s +
           QUuid::createUuid().toString(QUuid::Id128).left(12);
}
