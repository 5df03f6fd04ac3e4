#pragma once

#include <QString>
#include <cstdio>

/// One line that is drawn over and over on a terminal; on anything else nothing is drawn.
class Progress_Bar
{
  public:
    /// Draws on `stream` if that is a terminal and `wanted` holds.
    Progress_Bar(std::FILE* stream, bool wanted);
    Progress_Bar(const Progress_Bar&) = delete;
    Progress_Bar& operator=(const Progress_Bar&) = delete;
    ~Progress_Bar();

    /// Draws `percent` and what is in work, cut to the terminal's width.
    void Show(int percent, const QString& name);
    /// Takes the line away, so that another can be printed in its place.
    void Wipe();

  private:
    std::FILE* stream_;
    bool on_;
    QString shown_;
};

/// The bar as a text of at most `columns` characters: "[#####     ]  24% Movie.avi".
QString Bar_Text(int percent, const QString& name, int columns);
