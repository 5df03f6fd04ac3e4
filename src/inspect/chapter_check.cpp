#include "inspect/chapter_check.h"

#include "state/program.h"
#include "support/memory_file.h"
#include "support/platform_names.h"
#include "support/shown_text.h"
#include "tools/ask_tool.h"

#include <QProcess>

using namespace Qt::StringLiterals;

QString Why_Chapters_Are_Refused(Program& program)
{
    const QByteArray& made = program.Run.Video.Chapter_Xml;
    const QString& file = made.isEmpty() ? program.Companions.Chapter_File : program.Run.Video.Chapter_Text;
    if (file.isEmpty())
        return {};
    const Memory_File unwritten(made);
    const QString path = made.isEmpty() ? file : unwritten.Path();
    Command_Line command;
    command.Add_Option(u" --ui-language "_s, Tool_Language());
    command.Add_Path(u" --output "_s, QProcess::nullDevice());
    command.Add_Path(u" --chapters "_s, path);
    const Tool_Answer answer = Ask_Tool(program, program.Tools.System_MKVMerge_Path, command);
    // It warns of a head that it can't go back to.
    if (answer.Ended_Well(1) || answer.Halted)
        return {};
    for (const QByteArray& line : answer.Output.split('\n'))
        if (line.startsWith("Error:"))
            return First_Line(line.mid(6)).replace(path, As_One_Line(file));
    return answer.Why_Not(u"mkvmerge"_s);
}
