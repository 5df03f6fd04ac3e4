#include "forms/line_wrapper.h"

#include "forms/looks.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

bool Is_Plain_Line(const QString& line)
{
    return std::ranges::all_of(line, [](QChar letter) { return letter >= u' ' && letter <= u'~'; });
}

Line_Wrapper::Line_Wrapper(const QFont& font, int width)
    : font_(font), width_(width), fixed_(Is_Fixed_Width(font)), letter_(QFontMetricsF(font).horizontalAdvance(u'x'))
{
    constexpr qsizetype least = 8;
    letters_ = std::max(least, static_cast<qsizetype>(width / std::max(letter_, 1.0)));
}

/// The blanks that a line begins with, as far as they leave the words room.
qsizetype Line_Wrapper::Indent_Letters(const QString& line) const
{
    const auto* const word = std::ranges::find_if(line, [](QChar letter) { return letter != u' '; });
    return std::min(static_cast<qsizetype>(word - line.begin()), letters_ / 2);
}

int Line_Wrapper::Indent(const QString& line) const
{
    return static_cast<int>(letter_ * static_cast<double>(Indent_Letters(line)));
}

QStringList Line_Wrapper::Plain_Pieces(const QString& line) const
{
    QStringList pieces;
    const qsizetype indent = Indent_Letters(line);
    qsizetype room = letters_;
    qsizetype start = 0;
    while (line.size() - start > room) {
        const qsizetype blank = line.lastIndexOf(u' ', start + room); // at an end it takes no room
        // The first piece isn't the blanks alone.
        const qsizetype end = blank > start + (start == 0 ? indent : 0) ? blank + 1 : start + room;
        pieces += line.sliced(start, end - start);
        start = end;
        room = letters_ - indent;
    }
    return pieces << line.sliced(start);
}

QStringList Line_Wrapper::Measured_Pieces(const QString& line) const
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(line, font_);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList pieces;
    for (QTextLine piece = layout.createLine(); piece.isValid(); piece = layout.createLine()) {
        piece.setLineWidth(pieces.isEmpty() ? width_ : width_ - Indent(line));
        pieces += line.sliced(piece.textStart(), piece.textLength());
    }
    layout.endLayout();
    return pieces.isEmpty() ? QStringList{line} : pieces;
}

QStringList Line_Wrapper::Pieces(const QString& line) const
{
    return fixed_ && Is_Plain_Line(line) ? Plain_Pieces(line) : Measured_Pieces(line);
}

int Line_Wrapper::Count(const QString& line) const
{
    const bool plain = fixed_ && Is_Plain_Line(line);
    return plain && line.size() <= letters_ ? 1 : static_cast<int>(Pieces(line).size());
}
