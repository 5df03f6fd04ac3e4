#pragma once

#include <QStringList>

struct Program;

/// The two sections of a log entry that say what the operator had chosen: a line for each option that is on, indented,
/// in the log's fixed order. Prefixes mark the group: "~~ " audio, subtitles and paths, "++ " chapters, "-- " the rest.

/// Lines of "[Menu Selections]", which stands in entries of verbosity 4 and more.
QStringList Menu_Selection_Lines(const Program& program);

/// Lines of "[Active Checkboxes]", which stands in entries of verbosity 3 and more.
QStringList Active_Checkbox_Lines(const Program& program);
