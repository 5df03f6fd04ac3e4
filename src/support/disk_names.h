#pragma once

#include <QByteArray>
#include <QString>

/// A name on disk is a row of bytes, as a rule UTF-8. Where a byte isn't, a lone surrogate, U+DC00 and the byte, stands
/// in for it: no valid name ever holds one, so two names that differ only in such bytes stay two, and every name leads
/// back to its file. Qt's own file classes can't open a file of such a name; nothing of ours asks them to.

/// The text of a name or path as the disk has it.
QString Text_Of_Name(const QByteArray& bytes);
/// The bytes that Text_Of_Name made the text from.
QByteArray Bytes_Of_Name(const QString& text);

/// True if the text holds a stand-in: the name is no valid UTF-8.
bool Has_Stand_Ins(const QString& text);
