#pragma once

#include "support/amount_text.h"

#include <QString>
#include <cstdio>

/// How far a run is.
struct Bar_Facts
{
    int Index = 0; ///< of the file in work, from 1
    int Files = 0;
    int Percent = 0;           ///< of the whole run
    double Bytes_A_Second = 0; ///< 0: not known yet
    qint64 Seconds_Left = -1;  ///< below 0: not known yet
    QString Name = {};
};

/// One line that is drawn over and over on a terminal; on a terminal that can't draw over (TERM is "dumb" or missing) a
/// line for each file; on anything else nothing is drawn.
class Progress_Bar
{
  public:
    /// Draws on `stream` if that is a terminal and `wanted` holds.
    Progress_Bar(std::FILE* stream, bool wanted);
    Progress_Bar(const Progress_Bar&) = delete;
    Progress_Bar& operator=(const Progress_Bar&) = delete;
    ~Progress_Bar();

    /// Draws the facts, cut to the terminal's width.
    void Show(const Bar_Facts& facts);
    /// Takes the line away, so that another can be printed in its place.
    void Wipe();

  private:
    /// How wide the terminal is; 0: it doesn't tell.
    int Columns() const;
    void Show_Line(const Bar_Facts& facts);

    std::FILE* stream_;
    bool on_;
    bool draws_over_;
    int line_of_ = 0; ///< the file that has its line
    QString shown_;
};

/// Takes the cursor to the start of a line that is drawn over, and what stands on the line away.
inline const QString Wiped_Line = QStringLiteral("\r\033[K");

/// "17/40 43% 210 MB/s 0:03:10 name"; what isn't known is left out.
QString Facts_Text(const Bar_Facts& facts);

/// The bar and the facts behind it as a text of at most `columns` characters: "[####   ] 17/40 43% ...". The bar grows
/// with the columns; few leave none.
QString Bar_Text(const Bar_Facts& facts, int columns);
