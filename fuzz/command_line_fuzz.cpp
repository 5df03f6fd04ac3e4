#include "fuzz.h"
#include "support/command_line.h"
#include "support/shown_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

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
    Claim(
        std::none_of(quoted.begin(), quoted.end(), [](QChar letter) { return Can_Mislead(letter) && letter != u'\n'; }),
        "the quoted text holds nothing that could mislead on a terminal", quoted);
    return 0;
}
