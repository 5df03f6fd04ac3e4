#include "common/stand_in_tool.h"
#include "common/test_trash.h"

#include <QDir>

/// One folder for each test process; Wine keeps its recycle bin in the trash of its host.
static QString Data_Home()
{
    static const QTemporaryDir home;
    return home.path();
}

void Use_Own_Trash()
{
    // Wine makes the innermost folders only.
    QDir().mkpath(Data_Home() + u"/Trash"_s);
    qputenv("XDG_DATA_HOME", Path_In_Script(Data_Home()));
}

QStringList Names_In_Trash()
{
    return QDir(Data_Home() + u"/Trash/files"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
}

Refused_By_Trash::Refused_By_Trash(const QString& path) : held_(path)
{
    // Qt lets others read and write meanwhile, but not rename.
    if (!held_.open(QIODevice::ReadOnly))
        qFatal("A file can't be held: %s", qPrintable(path));
}

Refused_By_Trash::~Refused_By_Trash() = default;
