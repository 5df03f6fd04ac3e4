#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

/// What a line of the process log is. Told by the words that Vantorra and mkvmerge begin or end such a line with: what
/// a name in the middle of it says never counts.
enum class Log_Line : std::uint8_t
{
    Plain,
    Head,    ///< an entry begins
    Warning, ///< something isn't as it was asked for
    Fault    ///< a video, or the run, came to nothing
};

Log_Line Kind_Of_Line(QStringView line);

/// An entry of the log: the row of its head line, and when it was made, as that line says.
struct Log_Entry_Head
{
    int Row = 0;
    QString Caption;
};

std::vector<Log_Entry_Head> Entry_Heads(const QStringList& lines);
