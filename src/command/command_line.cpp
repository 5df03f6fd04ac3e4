#include "command/command_line.h"

#include "support/paths.h"
#include "support/text.h"

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
    text_.Append(option);
    text_.Append(value);
    arguments_ += Trim_Blanks(option);
    arguments_ += Argument_Of(value);
}

void Command_Line::Add_Path(const QString& option, const QString& path)
{
    text_.Append(option);
    text_.Append(Quote_Path(path));
    arguments_ += Trim_Blanks(option);
    arguments_ += path;
}

void Command_Line::Add_Input(const QString& path)
{
    text_.Append(u" ( ");
    text_.Append(Quote_Path(path));
    text_.Append(u" )");
    arguments_ += {u"("_s, path, u")"_s};
}

QString Command_Line::Argument_Of(const QString& value)
{
    QString argument = value;
    if (argument.size() >= 2 && argument.startsWith(u'"') && argument.endsWith(u'"'))
        argument = argument.mid(1, argument.size() - 2);
    argument.replace(u"\\\""_s, u"\""_s);
    argument.replace(u"\"\"\""_s, u"\""_s);
    return argument;
}

bool Command_Line::Is_Refused(const QString& value)
{
    return Argument_Of(value).startsWith(u'@');
}

QString Command_Line::Refused_Value(const QString& option, const QString& value)
{
    return u"*** "_s + Trim_Blanks(option) + u" is left out: \""_s + Argument_Of(value) +
           u"\" begins with \"@\", which mkvmerge takes for a file of options."_s;
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
