#include "support/command_line.h"
#include "support/shown_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static bool Is_Plain(QChar character)
{
    return character.unicode() < 128 && (character.isLetterOrNumber() || u"_-+=:,./@%"_s.contains(character));
}

/// What stands for a character between single quotes. What could mislead on a terminal, but for the line feed, is
/// spelled out by printf, so that the words can be shown on a terminal.
static QString Shell_Letter(QChar letter)
{
    if (letter == u'\'')
        return u"'\\''"_s;
    if (!Can_Mislead(letter) || letter == u'\n')
        return letter;
    QString octal;
    for (const char byte : QString(letter).toUtf8())
        octal += u"\\%1"_s.arg(static_cast<unsigned char>(byte), 3, 8, QChar(u'0'));
    return u"'\"$(printf '%1')\"'"_s.arg(octal);
}

static QString Shell_Word(const QString& argument)
{
    if (!argument.isEmpty() && std::all_of(argument.begin(), argument.end(), Is_Plain))
        return argument;
    QString quoted(u'\'');
    for (const QChar letter : argument)
        quoted += Shell_Letter(letter);
    return quoted + u'\'';
}

QString Shell_Quoted(const QStringList& arguments)
{
    QStringList words;
    words.reserve(arguments.size());
    for (const QString& argument : arguments)
        words += Shell_Word(argument);
    return words.join(u' ');
}
