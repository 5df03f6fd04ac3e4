#include "workbenches/log_lines.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr QStringView Head_Words = u"This entry generated on - ";

static constexpr QStringView Fault_Beginnings[] = {
    u"*** Not processed: ",       u"*** the run stopped: ",
    u"*** The display has gone",  u"-- FAILED - ",
    u"-- Cannot process ",        u"-- Failed to create ",
    u"-- NO VIDEO FILES FOUND!",  u"-- No video is ticked",
    u"-- Source video file KEPT", u"-- The 'Create",
    u"-- The Target path ",       u"-- The Video path ",
    u"-- WRONG mkvmerge",         u"Error: ",
};

/// What the reports of a video that is given up end with.
static constexpr QStringView Fault_Ends[] = {
    u"Processing cannot proceed.", u"Abandoning this file.", u"is DISALLOWED.",
    u"I don't know what to do!",   u" is cancelled.",
};

static constexpr QStringView Warning_Beginnings[] = {
    u"***", u"-- WARNING", u"-- SKIPPED - ", u"-- Could not be moved to the trash", u"Warning: ",
};

/// What wasn't found, or was to go to the trash.
static constexpr QStringView Warning_Ends[] = {
    u", but none were found.",
    u"\" stays: the trash refused it",
    u"\" stays: it was changed meanwhile",
};

/// Three stars that only say what was done.
static constexpr QStringView Notes[] = {
    u"*** Audio Options file is used.",
    u"*** Adding/replacing chapters.",
    u"*** The given Chapters text file",
};

static bool Begins_With_One_Of(QStringView line, const auto& words)
{
    return std::ranges::any_of(words, [line](QStringView word) { return line.startsWith(word); });
}

static bool Ends_With_One_Of(QStringView line, const auto& words)
{
    return std::ranges::any_of(words, [line](QStringView word) { return line.endsWith(word); });
}

Log_Line Kind_Of_Line(QStringView line)
{
    line = line.trimmed();
    if (line.startsWith(Head_Words))
        return Log_Line::Head;
    const bool ours = line.startsWith("--"_L1) || line.startsWith("***"_L1);
    if (!ours && !line.startsWith("Error: "_L1) && !line.startsWith("Warning: "_L1))
        return Log_Line::Plain;
    if (Begins_With_One_Of(line, Fault_Beginnings) || (ours && Ends_With_One_Of(line, Fault_Ends)))
        return Log_Line::Fault;
    const bool odd = Begins_With_One_Of(line, Warning_Beginnings) || (ours && Ends_With_One_Of(line, Warning_Ends));
    return odd && !Begins_With_One_Of(line, Notes) ? Log_Line::Warning : Log_Line::Plain;
}

/// "Nov/21/2026 08:15:00 AM"; all that stands behind the head's words where it isn't as we write it.
static QString When_Of(const QString& head)
{
    const QString rest = head.sliced(Head_Words.size());
    const qsizetype end = rest.indexOf(" local time by "_L1);
    return end > 0 ? rest.first(end) : rest;
}

std::vector<Log_Entry_Head> Entry_Heads(const QStringList& lines)
{
    std::vector<Log_Entry_Head> heads;
    for (qsizetype row = 0; row < lines.size(); ++row)
        // The first letter alone tells of most lines that they are none.
        if (const QString& line = lines[row]; line.startsWith(Head_Words.front()) && line.startsWith(Head_Words))
            heads.push_back({static_cast<int>(row), When_Of(lines[row])});
    return heads;
}
