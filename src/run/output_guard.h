#pragma once

#include "command/command_line.h"

#include <QString>

/// The last net under the folder checks. mkvmerge empties its output before it reads its inputs, so a command whose
/// output is one of the very files that it reads (the same file on disk, by whatever name or link) must not be run.

/// The first input of the command (source, companion, attachment, chapter file) that is the same file on disk as
/// `output`; empty if none is, as for an output that doesn't exist yet.
QString Input_That_Is_Output(const Command_Line& command, const QString& output);

/// The line for Log_Faults that says so.
QString Refused_Output(const QString& input, const QString& output);
