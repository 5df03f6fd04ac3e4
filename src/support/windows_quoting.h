#pragma once

#include <QString>
#include <QStringList>

/// The one text that a Windows program is started with, which the program itself takes apart again. Plain text work, on
/// every platform.

/// The longest command line that Windows takes, in UTF-16 units.
inline constexpr qsizetype Longest_Windows_Command_Line = 32'766;

/// `program` and `arguments` as one command line, from which CommandLineToArgvW and the C run-time both read the same
/// arguments again: no quote, backslash or line break in one ever starts another. What a run-time might take for a
/// pattern of file names is quoted, too, as is what means something to the command prompt. An argument ends at its
/// first zero character.
QString Windows_Command_Line(const QString& program, const QStringList& arguments);
