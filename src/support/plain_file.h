#pragma once

#include <QFile>
#include <QString>

/// The most bytes of a file that is read whole: settings, option files, chapters, indexes. Far more than any needs.
inline constexpr qint64 Longest_Side_File = 64LL << 20;

/// Opens a plain file, or a link to one, for reading, unbuffered. Nothing is waited for: a pipe, socket, device or
/// folder of that name isn't opened but is an error that names it, as is every failure. `doing` says what the file is
/// for.
void Open_Plain_File(QFile& file, const QString& path, const QString& doing);

/// True if a plain file, not a link to one, has that name.
bool Is_Plain_File(const QString& path);
/// An error that names the path unless a plain file, not a link to one, has that name or nothing has.
void Require_Plain_Or_Nothing(const QString& path, const QString& doing);
