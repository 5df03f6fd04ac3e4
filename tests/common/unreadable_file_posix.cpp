#include "common/unreadable_file.h"

#include <QFile>

std::shared_ptr<void> Make_Unreadable(const QString& path)
{
    QFile::link(QStringLiteral("/dev/null"), path);
    return {nullptr, [path](void*) { QFile::remove(path); }};
}
