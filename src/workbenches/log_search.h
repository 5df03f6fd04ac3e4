#pragma once

#include "workbenches/log_lines.h"

/// Looking for something in the lines of a log that are shown: which rows it is in, and going from one to the next.

/// The rows that hold `text`, in any case; none for an empty text.
std::vector<int> Rows_Holding(const QStringList& lines, const QString& text);

/// The rows of that kind.
std::vector<int> Rows_Of_Kind(const QStringList& lines, Log_Line kind);

/// Which of `rows` comes next behind `row`, or ahead of it; past the end it goes on at the other side. -1: there is
/// none.
int Next_Place(const std::vector<int>& rows, int row, bool back);

/// "3 of 17" for the place 2 of 17.
QString Place_Text(int place, std::size_t count);
