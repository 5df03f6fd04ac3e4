#include "support/amount_text.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString Size_Text(double bytes)
{
    static const QStringList units = {u"B"_s, u"KB"_s, u"MB"_s, u"GB"_s, u"TB"_s};
    qsizetype unit = 0;
    for (; bytes >= 999.5 && unit + 1 < units.size(); ++unit)
        bytes /= 1000;
    return QString::number(bytes, 'f', unit == 0 || bytes >= 99.95 ? 0 : 1) + u' ' + units[unit];
}

QString Time_Text(qint64 seconds, bool hours)
{
    const auto two_digits = [](qint64 number) { return QString::number(number).rightJustified(2, u'0'); };
    if (!hours && seconds < 3600)
        return QString::number(seconds / 60) + u':' + two_digits(seconds % 60);
    return QString::number(seconds / 3600) + u':' + two_digits(seconds / 60 % 60) + u':' + two_digits(seconds % 60);
}
