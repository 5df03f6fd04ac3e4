#include "tools/ask_tool.h"

#include "state/program.h"
#include "support/child_process.h"
#include "support/command_line.h"
#include "support/death_words.h"
#include "support/system_identification.h"

#include <QRegularExpression>
#include <algorithm>
#include <deque>

using namespace Qt::StringLiterals;

static constexpr std::size_t Answer_Read_Bytes = 65536;
/// No answer about a file is longer; a tool that prints without end would fill the memory.
static constexpr qsizetype Longest_Answer = 64 << 20;
static constexpr qsizetype Longest_First_Line = 300;

bool Tool_Answer::Ended_Well(int also) const
{
    return Not_Started.isEmpty() && !Halted && !Too_Long && (Exit_Status == 0 || Exit_Status == also);
}

QString First_Line(const QByteArray& messages)
{
    // ffprobe says where in its memory the part lies that complains: "[mov @ 0x55d0ac] moov atom not found".
    static const QRegularExpression address(u" @ (0x)?[0-9a-f]+\\]"_s);
    for (const QString& line : QString::fromUtf8(messages).split(u'\n')) {
        QString text = line;
        for (QChar& letter : text)
            if (letter.category() == QChar::Other_Control)
                letter = u' ';
        text = text.simplified().replace(address, u"]"_s);
        if (!text.isEmpty())
            return text.size() > Longest_First_Line ? text.left(Longest_First_Line) + u"..."_s : text;
    }
    return {};
}

QString Tool_Answer::Why_Not(const QString& tool) const
{
    if (!Not_Started.isEmpty())
        return tool + u" could not be started: "_s + Not_Started;
    if (Halted)
        return tool + u" was ended by the halt"_s;
    if (Too_Long)
        return tool + u" printed without end"_s;
    const QString said = First_Line(Messages);
    QString how = u" did not end as it should"_s;
    if (Exit_Status && *Exit_Status < 0)
        how = u" was ended by "_s + What_Ended(*Exit_Status);
    else if (Exit_Status)
        how = u" ended with status %1"_s.arg(*Exit_Status);
    return tool + how + (said.isEmpty() ? QString() : u": "_s + said);
}

/// Reads until both pipes are closed, or until the child is given up.
static void Read_Answer(Program& program, Child_Process& child, Tool_Answer& answer)
{
    QByteArray output;
    QByteArray messages;
    for (;;) {
        program.Person.Pump_Events();
        const Child_Process::Read read = child.Read_Chunks(output, messages, Answer_Read_Bytes);
        if (read == Child_Process::Read::Ended)
            break;
        answer.Output += output;
        answer.Messages += messages;
        answer.Halted = program.Run.Halt_Requested;
        answer.Too_Long = answer.Output.size() + answer.Messages.size() > Longest_Answer;
        if (answer.Halted || answer.Too_Long)
            return child.Kill();
    }
    const bool ended = child.Wait([&program] {
        program.Person.Pump_Events();
        return !program.Run.Halt_Requested;
    });
    if (!ended) {
        answer.Halted = true;
        child.Kill();
    }
}

/// A tool that was asked and hasn't been heard.
struct Asked_Tool
{
    Child_Process Child;
    Child_Process::Started Started = Child_Process::Started::No_Process;
};

static void Start(Asked_Tool& asked, const QString& executable, const Command_Line& command)
{
    asked.Started = asked.Child.Start(executable, command.Arguments(), Child_Process::Outputs::Apart);
}

static Tool_Answer Hear(Program& program, Asked_Tool& asked)
{
    Run_State& run = program.Run;
    Child_Process& child = asked.Child;
    run.Exit_Status.reset();
    run.Pipe_Result = asked.Started == Child_Process::Started::No_Pipe ? 0 : 1;
    run.Process_Result = asked.Started == Child_Process::Started::Yes ? -1 : child.System_Error();
    Tool_Answer answer;
    if (asked.Started != Child_Process::Started::Yes) {
        answer.Not_Started = Format_System_Error(child.System_Error());
        return answer;
    }
    Read_Answer(program, child, answer);
    answer.Exit_Status = child.Exit_Status();
    run.Exit_Status = answer.Exit_Status;
    return answer;
}

Tool_Answer Ask_Tool(Program& program, const QString& executable, const Command_Line& command)
{
    Asked_Tool asked;
    Start(asked, executable, command);
    return Hear(program, asked);
}

std::vector<Tool_Answer> Ask_Tool_Of_Each(Program& program, const QString& executable,
                                          const std::vector<Command_Line>& commands)
{
    constexpr std::size_t at_once = 2;
    std::vector<Tool_Answer> answers;
    std::deque<Asked_Tool> asked;
    for (std::size_t next = 0; next < commands.size(); ++next) {
        while (asked.size() < std::min(next + at_once, commands.size())) {
            asked.emplace_back();
            Start(asked.back(), executable, commands[asked.size() - 1]);
        }
        answers.push_back(Hear(program, asked[next]));
    }
    return answers;
}
