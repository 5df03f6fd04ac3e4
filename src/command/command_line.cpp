#include "command/command_line.h"

#include "support/paths.h"
#include "support/text.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

void Command_Line::Add(const QString& text, const QString& argument)
{
    text_.Append(text);
    arguments_ += argument;
}

void Command_Line::Add_Options(const QString& text)
{
    text_.Append(text);
    arguments_ += text.split(u' ', Qt::SkipEmptyParts);
}

void Command_Line::Add_Option(const QString& option, const QString& value)
{
    if (Is_Refused(value)) {
        refusals_ += Refused_Value(option, value);
        return;
    }
    Add_Options(option);
    Add(value, Argument_Of(value));
}

void Command_Line::Add_Path(const QString& option, const QString& path)
{
    Add_Options(option);
    Add(Quote_Path(path), path);
}

void Command_Line::Add_Input(const QString& path)
{
    Add(u" ("_s, u"("_s);
    Add_Path(u" "_s, path);
    Add(u" )"_s, u")"_s);
}

QString Command_Line::Argument_Of(const QString& value)
{
    QStringView rest = value;
    if (rest.size() >= 2 && rest.startsWith(u'"') && rest.endsWith(u'"'))
        rest = rest.mid(1, rest.size() - 2);
    QString argument;
    argument.reserve(rest.size());
    // One pass from the left: the quote of a backslash-quote pair is never counted into three in a row.
    while (!rest.isEmpty()) {
        const qsizetype taken = rest.startsWith(u"\\\"") ? 2 : rest.startsWith(u"\"\"\"") ? 3 : 1;
        argument += taken == 1 ? rest.front() : QChar(u'"');
        rest = rest.mid(taken);
    }
    return argument;
}

/// True for what mkvmerge's first pass over its arguments may take for an option of its own.
static bool Reads_Like_An_Option(const QString& argument)
{
    static const QRegularExpression option(u"\\A(-[A-Za-z?]|--[a-z]+(-[a-z]+)*)\\z"_s);
    return argument.startsWith(u'-') && option.match(argument).hasMatch();
}

bool Command_Line::Is_Refused(const QString& value)
{
    const QString argument = Argument_Of(value);
    return argument.startsWith(u'@') || Reads_Like_An_Option(argument);
}

QString Command_Line::Refused_Value(const QString& option, const QString& value)
{
    const QString argument = Argument_Of(value);
    const QString reason = argument.startsWith(u'@')
                               ? u"\" begins with \"@\", which mkvmerge takes for a file of options."_s
                               : u"\" reads like an option of mkvmerge."_s;
    return u"*** "_s + Trim_Blanks(option) + u" is left out: \""_s + argument + reason;
}

static bool Is_Plain(QChar character)
{
    return character.unicode() < 128 && (character.isLetterOrNumber() || u"_-+=:,./@%"_s.contains(character));
}

static QString Shell_Word(const QString& argument)
{
    if (!argument.isEmpty() && std::all_of(argument.begin(), argument.end(), Is_Plain))
        return argument;
    QString quoted = argument;
    return u'\'' + quoted.replace(u"'"_s, u"'\\''"_s) + u'\'';
}

QString Shell_Quoted(const QStringList& arguments)
{
    QStringList words;
    words.reserve(arguments.size());
    for (const QString& argument : arguments)
        words += Shell_Word(argument);
    return words.join(u' ');
}
