#include "tools/installed_tools.h"

#include "support/paths.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString Find_In_Path(const QString& name, const QString& beside)
{
    for (const QString& entry : QFile::decodeName(qgetenv("PATH")).split(u':')) {
        const QString folder = With_Separator(entry);
        const bool has_beside = beside.isEmpty() || File_Exists(folder + beside);
        if (File_Exists(folder + name) && QFileInfo(folder + name).isExecutable() && has_beside)
            return folder + name;
    }
    return {};
}

QString Installed_MKVToolNix()
{
    for (const QString& name : {u"mkvtoolnix-gui"_s, u"mkvmerge"_s})
        if (QString path = Find_In_Path(name, u"mkvmerge"_s); !path.isEmpty())
            return path;
    return {};
}

bool Can_Link_Tools()
{
    return true;
}
