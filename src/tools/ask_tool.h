#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

struct Program;
class Command_Line;

/// What a tool said that was asked something. Its word counts only if it ended well.
struct Tool_Answer
{
    QByteArray Output;
    QByteArray Messages;            ///< from the pipe of its own that messages have
    QString Not_Started;            ///< why the tool could not be started, in the system's words; empty: it was
    std::optional<int> Exit_Status; ///< 0 to 255, or minus a signal's number; nothing: never reaped
    bool Halted = false;            ///< a halt ended it
    bool Too_Long = false;          ///< it printed without end and was ended

    /// Started, not ended by us, and ended with 0 or `also`.
    bool Ended_Well(int also = 0) const;

    /// Why the answer doesn't count, in one line: the tool's own first line, or how it ended. `tool` names it.
    QString Why_Not(const QString& tool) const;
};

/// Runs a tool that answers with a text and changes nothing, its messages in a pipe of their own. A halt ends it.
/// Leaves Pipe_Result, Process_Result and Exit_Status as Run_Tool_Capture does.
Tool_Answer Ask_Tool(Program& program, const QString& executable, const Command_Line& command);

/// The same for several commands, with the answers in their order. What a tool does while it starts lets a second core
/// work on the next: two are under way at a time.
std::vector<Tool_Answer> Ask_Tool_Of_Each(Program& program, const QString& executable,
                                          const std::vector<Command_Line>& commands);

/// The first line of a tool's messages that says something, without control characters and cut at a sensible length.
QString First_Line(const QByteArray& messages);
