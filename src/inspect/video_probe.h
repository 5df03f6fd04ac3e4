#pragma once

#include "support/command_line.h"

#include <QString>

struct Program;

/// Inspects one video: FFProbe_Output and Video_Duration. 1 on success; 0 after a report.
int Run_FFProbe_Video(Program& program, const QString& video_path);

/// The command line of one ffprobe run: " -v quiet -print_format compact " + `what` + " " + the quoted path.
Command_Line FFProbe_Command(const QString& what, const QString& path);
