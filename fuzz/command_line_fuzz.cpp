#include "fuzz.h"
#include "support/command_line.h"
#include "support/shown_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// The argument of a printf between "$( and )", which stands for a control character.
static QString Printed(const QString& octals)
{
    QByteArray bytes;
    for (const QString& octal : octals.split(u'\\', Qt::SkipEmptyParts))
        bytes += static_cast<char>(octal.toInt(nullptr, 8));
    return QString::fromUtf8(bytes);
}

/// The words that a POSIX shell makes of the text, as far as Shell_Quoted writes it.
static QStringList Shell_Words(const QString& text)
{
    const QString print_begin = u"\"$(printf '"_s;
    const QString print_end = u"')\""_s;
    QStringList words;
    bool in_word = false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar letter = text[at];
        if (letter == u' ') {
            in_word = false;
            continue;
        }
        if (!in_word)
            words += QString();
        in_word = true;
        if (letter == u'\'') {
            const qsizetype end = text.indexOf(u'\'', at + 1);
            Claim(end > 0, "a quote is closed", text);
            words.last() += QStringView(text).sliced(at + 1, end - at - 1);
            at = end;
        } else if (letter == u'\\') {
            words.last() += text.at(++at);
        } else if (QStringView(text).sliced(at).startsWith(print_begin)) {
            const qsizetype begin = at + print_begin.size();
            const qsizetype end = text.indexOf(print_end, begin);
            Claim(end > 0, "a substitution is closed", text);
            words.last() += Printed(text.mid(begin, end - begin));
            at = end + print_end.size() - 1;
        } else {
            Claim(letter.isLetterOrNumber() || u"_-+=:,./@%"_s.contains(letter), "what isn't plain is quoted", text);
            words.last() += letter;
        }
    }
    return words;
}

/// One value, as an option's and as a path: it stays one argument whatever it holds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QString value = Text_Of(bytes, size);
    Command_Line command;
    command.Add_Option(u" --no-audio --track-name "_s, value);
    QStringList arguments = command.Arguments();
    if (Command_Line::Is_Refused(value)) {
        Claim(arguments.isEmpty() && command.Text().isEmpty() && command.Refusals().size() == 1,
              "a refused value goes with its option, and a line tells why", value);
    } else {
        Claim(arguments == QStringList{u"--no-audio"_s, u"--track-name"_s, Command_Line::Argument_Of(value)},
              "one value is one argument", value);
        Claim(!arguments.constLast().startsWith(u'@'), "no argument names a file of options", value);
        Claim(command.Text() == u" --no-audio --track-name "_s + value, "the text has the value as it stands", value);
    }
    command.Add_Path(u" --output "_s, value);
    command.Add_Input(value);
    arguments += {u"--output"_s, value, u"("_s, value, u")"_s};
    Claim(command.Arguments() == arguments, "a path's argument is the path itself", value);

    const QString quoted = Shell_Quoted(arguments);
    Claim(Shell_Words(quoted) == arguments, "a shell makes the same arguments of the quoted text", quoted);
    Claim(
        std::none_of(quoted.begin(), quoted.end(), [](QChar letter) { return Can_Mislead(letter) && letter != u'\n'; }),
        "the quoted text holds nothing that could mislead on a terminal", quoted);
    return 0;
}
