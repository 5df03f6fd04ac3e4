#include "support/platform_names.h"

using namespace Qt::StringLiterals;

QString Executable_Name(const QString& program)
{
    return program;
}

QString Tool_Language()
{
    return u"en_US"_s;
}
