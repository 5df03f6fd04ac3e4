#pragma once

#include <QString>

/// Text from outside (names, titles, what a tool said) where it is shown to people. What could pass for something else
/// is written out: "\n", "\t", "\x1B" for a control character, "\u202E" for a mark that turns the direction of writing,
/// "\xE9" for a byte of a name that is no UTF-8 (on Windows "\uD83D" for half a character).

/// The text with the bytes that are no UTF-8 written out, and nothing else.
QString Bytes_Shown(const QString& text);

/// For a line of a log: the text as one line, with its line breaks and bytes that are no UTF-8 written out.
QString As_One_Line(const QString& text);

/// For a line on a terminal: also with control characters and marks of direction written out.
QString Printable(const QString& text);

/// True for a character that moves a terminal's cursor, ends a line or turns the direction of writing.
bool Can_Mislead(QChar letter);
