#include "support/platform_names.h"

using namespace Qt::StringLiterals;

QString Executable_Name(const QString& program)
{
    return program + u".exe"_s;
}

QString Tool_Language()
{
    return u"en"_s;
}
