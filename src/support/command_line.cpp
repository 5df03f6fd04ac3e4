#include "support/command_line.h"

#include "support/long_path.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/text.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// True for what mkvmerge's first pass over its arguments may take for an option of its own.
static bool Reads_Like_An_Option(const QString& argument)
{
    static const QRegularExpression option(u"\\A(-[A-Za-z?]|--[a-z]+(-[a-z]+)*)\\z"_s);
    return argument.startsWith(u'-') && option.match(argument).hasMatch();
}

/// The most bytes of one argument that the system passes to a child.
static constexpr qsizetype Longest_Argument = 131'071;

/// Why an argument can't be given to mkvmerge as a value; empty if it can.
static QString Refusal_Reason(const QString& argument)
{
    if (argument.startsWith(u'@'))
        return u"begins with \"@\", which mkvmerge takes for a file of options."_s;
    if (Reads_Like_An_Option(argument))
        return u"reads like an option of mkvmerge."_s;
    // A child that can't be started would end the whole run.
    if (argument.size() > Longest_Argument / 4 && argument.toUtf8().size() > Longest_Argument)
        return u"is longer than the system can pass on."_s;
    return {};
}

static QString Refusal(const QString& option, const QString& argument)
{
    constexpr qsizetype longest_quote = 200;
    return u"*** "_s + Trim_Blanks(option) + u" is left out: \""_s + As_One_Line(argument.left(longest_quote)) +
           u"\" "_s + Refusal_Reason(argument);
}

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
    Add_Literal(option, value, Argument_Of(value));
}

void Command_Line::Add_Literal(const QString& option, const QString& text, const QString& argument)
{
    if (!Refusal_Reason(argument).isEmpty()) {
        refusals_ += Refusal(option, argument);
        return;
    }
    Add_Options(option);
    Add(text, argument);
}

void Command_Line::Add_Path(const QString& option, const QString& path)
{
    Add_Options(option);
    Add(Quote_Path(path), Path_For_Tool(path));
}

bool Command_Line::Holds_Path(const QString& path) const
{
    return arguments_.contains(Path_For_Tool(path));
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
    // A child gets no more of it than that.
    return Cut_At_Nul(argument);
}

bool Command_Line::Is_Refused(const QString& value)
{
    return !Refusal_Reason(Argument_Of(value)).isEmpty();
}

QString Command_Line::Refused_Value(const QString& option, const QString& value)
{
    return Refusal(option, Argument_Of(value));
}
