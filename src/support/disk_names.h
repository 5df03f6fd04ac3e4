#pragma once

#include <QByteArray>
#include <QString>
#include <filesystem>

/// A name on disk is a row of bytes, as a rule UTF-8. Where a byte isn't, a lone surrogate, U+DC00 and the byte, stands
/// in for it: no valid name ever holds one, so two names that differ only in such bytes stay two, and every name leads
/// back to its file. Qt's own file classes can't open a file of such a name; nothing of ours asks them to.
///
/// On Windows a name is a row of UTF-16 units and is held as it is. A lone surrogate is no stand-in there but a part of
/// the name, and is told all the same: no tool can be given such a name.

/// The text of a name or path as the disk has it.
QString Text_Of_Name(const QByteArray& bytes);
/// The bytes that Text_Of_Name made the text from.
QByteArray Bytes_Of_Name(const QString& text);

/// True if the text holds a stand-in: the name is no valid UTF-8, or UTF-16 on Windows.
bool Has_Stand_Ins(const QString& text);

/// How one stand-in is shown to people: "\xE9", its byte; on Windows "\uD83D", the lone surrogate itself.
QString Stand_In_Shown(QChar letter);

/// For the standard library: the bytes of the name, or on Windows its UTF-16.
std::filesystem::path Native_Path(const QString& path);

/// A name's length as Longest_Name counts it: in bytes, on Windows in UTF-16 units.
qsizetype Length_On_Disk(const QString& name);

/// Why no file or folder may be made under that name, as it would get another one or none at all, in words that go on
/// after the name: "ends in a blank, which Windows takes away". Empty where it can be made. Asked ahead of every output
/// whose name comes from outside; on POSIX there is never a reason.
QString Why_Not_A_Name(const QString& name);
