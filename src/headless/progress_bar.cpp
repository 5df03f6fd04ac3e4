#include "headless/progress_bar.h"

#include "headless/print.h"

#include <QStringList>
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

QString Facts_Text(const Bar_Facts& facts)
{
    QString text = u"%1/%2 %3%"_s.arg(facts.Index).arg(facts.Files).arg(facts.Percent);
    if (facts.Bytes_A_Second > 0)
        text += u' ' + Size_Text(facts.Bytes_A_Second) + u"/s"_s;
    if (facts.Seconds_Left >= 0)
        text += u' ' + Time_Text(facts.Seconds_Left, true);
    return text + u' ' + facts.Name;
}

QString Bar_Text(const Bar_Facts& facts, int columns)
{
    // A third of the line at most; below these columns the facts need all of it.
    constexpr int narrow = 60;
    const int cells = columns < narrow ? 0 : std::min(columns / 3, 60);
    const int filled = std::clamp(facts.Percent, 0, 100) * cells / 100;
    const QString bar = cells == 0 ? QString() : u'[' + QString(filled, u'#') + QString(cells - filled, u' ') + u"] "_s;
    return Fitting(bar + Facts_Text(facts), columns);
}

void Progress_Bar::Show(const Bar_Facts& facts)
{
    if (!on_)
        return;
    if (!draws_over_) {
        Show_Line(facts);
        return;
    }
    // The last column stays free: a terminal may go on to the next line behind it.
    const int columns = Columns();
    const QString text = Bar_Text(facts, columns > 1 ? columns - 1 : 79);
    if (text == shown_)
        return;
    Print_Text(stream_, Wiped_Line + text);
    shown_ = text;
}

void Progress_Bar::Show_Line(const Bar_Facts& facts)
{
    if (line_of_ == facts.Index)
        return;
    line_of_ = facts.Index;
    Print_Text(stream_, Facts_Text(facts) + u'\n');
}

Progress_Bar::~Progress_Bar()
{
    Wipe();
}

void Progress_Bar::Wipe()
{
    if (shown_.isEmpty())
        return;
    Print_Text(stream_, Wiped_Line);
    shown_.clear();
}
