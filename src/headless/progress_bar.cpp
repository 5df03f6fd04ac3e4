#include "headless/progress_bar.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString Bar_Text(int percent, const QString& name, int columns)
{
    constexpr int cells = 30;
    const int filled = std::clamp(percent, 0, 100) * cells / 100;
    return u"[%1%2] %3% %4"_s.arg(QString(filled, u'#'), QString(cells - filled, u' '))
        .arg(percent, 3)
        .arg(name)
        .left(std::max(columns, 0));
}

Progress_Bar::~Progress_Bar()
{
    Wipe();
}

void Progress_Bar::Wipe()
{
    if (shown_.isEmpty())
        return;
    std::fputs("\r\033[K", stream_);
    std::fflush(stream_);
    shown_.clear();
}
