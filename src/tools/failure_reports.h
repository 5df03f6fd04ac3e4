#pragma once

#include <QString>

struct Program;

/// The numbered failure reports: a message box, lines in Log_Faults, and a digest. Codes without an entry do nothing.
/// `text_1` is the tool's name or path, `text_2` the file, where the report has one. `beside` is the file that stands
/// beside the video in work, if the report is about such a one: the box then names it in a line of its own. Returns 0.
int Report_Run_Failure(Program& program, int code, const QString& text_1 = {}, const QString& text_2 = {},
                       const QString& beside = {});
