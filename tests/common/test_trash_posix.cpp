#include "common/test_program.h"
#include "common/test_trash.h"

#include <QDir>
#include <QFile>

/// One folder for each test process, below the build's temporary folder; Qt finds the trash through XDG_DATA_HOME.
static QString Data_Home()
{
    static const QTemporaryDir home;
    return home.path();
}

void Use_Own_Trash()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(Data_Home()));
    // Where a test's files lie on another disk than the home, their trash would be that disk's.
    qputenv("HOME", QFile::encodeName(Data_Home()));
}

QStringList Names_In_Trash()
{
    return QDir(Data_Home() + u"/Trash/files"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
}

Refused_By_Trash::Refused_By_Trash(const QString&)
{
    qputenv("XDG_DATA_HOME", "/proc/nowhere");
}

Refused_By_Trash::~Refused_By_Trash()
{
    Use_Own_Trash();
}
