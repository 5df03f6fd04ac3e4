#include "support/command_line.h"
#include "support/shown_text.h"
#include "support/windows_quoting.h"

QString Shell_Quoted(const QStringList& arguments)
{
    return Printable(Windows_Command_Line(arguments.value(0), arguments.mid(1)));
}
