#include "support/windows_quoting.h"

#include "support/text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static bool Needs_Quotes(QChar letter)
{
    return letter.unicode() <= u' ' || letter.isSpace() || u"\"*?&|<>^"_s.contains(letter);
}

/// Backslashes count only ahead of a quote, where each takes two, and the quote one more.
static QString Quoted(const QString& argument)
{
    if (!argument.isEmpty() && std::none_of(argument.begin(), argument.end(), Needs_Quotes))
        return argument;
    QString quoted(u'"');
    qsizetype backslashes = 0;
    for (const QChar letter : argument) {
        if (letter == u'"')
            quoted += QString(backslashes + 1, u'\\');
        backslashes = letter == u'\\' ? backslashes + 1 : 0;
        quoted += letter;
    }
    return quoted + QString(backslashes, u'\\') + u'"';
}

QString Windows_Command_Line(const QString& program, const QStringList& arguments)
{
    // The first word is read by a rule of its own: up to the next quote, backslashes as they stand.
    QString line = u'"' + program + u'"';
    for (const QString& argument : arguments)
        line += u' ' + Quoted(Cut_At_Nul(argument));
    return line;
}
