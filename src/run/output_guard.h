#pragma once

#include "support/command_line.h"

#include <QString>

/// The last net under the folder checks. mkvmerge empties its output before it reads its inputs, so a command must not
/// be run if what stands at its output's place is, by whatever name or link, one of the files that it reads or any
/// other file of the videos' folder.

/// The file that would be destroyed: an input of the command (source, companion, attachment, chapter file) or a file of
/// `videos_folder` that is the same file on disk as `output`. Empty if there is none, as for an output that doesn't
/// exist yet. The folder is only searched for an output that is a link.
QString File_That_Is_Output(const Command_Line& command, const QString& output, const QString& videos_folder);

/// The line for Log_Faults that says so.
QString Refused_Output(const QString& file, const QString& output);
