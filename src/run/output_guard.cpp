#include "run/output_guard.h"

#include "support/paths.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString Input_That_Is_Output(const Command_Line& command, const QString& output)
{
    if (!File_Exists(output))
        return {};
    const QStringList ahead_of_inputs = {u"("_s, u"--attach-file"_s, u"--chapters"_s};
    const QStringList& arguments = command.Arguments();
    for (qsizetype index = 1; index < arguments.size(); ++index)
        if (ahead_of_inputs.contains(arguments[index - 1]) && Same_File(arguments[index], output))
            return arguments[index];
    return {};
}

QString Refused_Output(const QString& input, const QString& output)
{
    return u"*** Not processed: the output \""_s + output + u"\" is the same file on disk as \""_s + input +
           u"\", which would be destroyed. Choose another target folder."_s;
}
