#include "forms/drawn_icon.h"

using namespace Qt::StringLiterals;

QIcon Drawn_Icon(const QString& name)
{
    return QIcon(u":/images/"_s + name + u".svg"_s);
}
