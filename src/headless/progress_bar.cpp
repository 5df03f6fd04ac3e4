#include "headless/progress_bar.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// The start of a text that fits into that many columns. East Asian letters and everything behind them count double,
/// so that a line is rather too short than wrapped: a wrapped line can't be wiped.
static QString Fitting(const QString& text, int columns)
{
    int used = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        used += text[i].unicode() < 0x1100 ? 1 : 2;
        if (used > columns)
            return text.left(text[i].isLowSurrogate() ? i - 1 : i);
    }
    return text;
}

QString Bar_Text(int percent, const QString& name, int columns)
{
    constexpr int cells = 30;
    const int filled = std::clamp(percent, 0, 100) * cells / 100;
    const QString bar = u"[%1%2] %3% "_s.arg(QString(filled, u'#'), QString(cells - filled, u' ')).arg(percent, 3);
    return Fitting(bar + name, columns);
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
