#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

/// Cuts lines of text into pieces that fit a width: behind a blank where there is one, else anywhere. The pieces behind
/// the first are drawn below the line's first word, so that each line is still told from the next. Quick for tens of
/// thousands of plain lines in a font of fixed width: their letters are only counted.
class Line_Wrapper
{
  public:
    /// `width` in pixels.
    Line_Wrapper(const QFont& font, int width);

    /// One piece at least; together they are the line.
    QStringList Pieces(const QString& line) const;
    /// How many pieces there are.
    int Count(const QString& line) const;
    /// How far the pieces behind the first are moved in, in pixels.
    int Indent(const QString& line) const;

  private:
    QStringList Plain_Pieces(const QString& line) const;
    QStringList Measured_Pieces(const QString& line) const;
    qsizetype Indent_Letters(const QString& line) const;

    QFont font_;
    int width_;
    bool fixed_;
    double letter_;     ///< the width of one
    qsizetype letters_; ///< how many fit
};

/// Where each character is as wide as the next in a font of fixed width: printable ASCII.
bool Is_Plain_Line(const QString& line);
