#pragma once

#include <QString>

struct Program;

/// Adds one entry to the process log: when and by which version, what the operator had chosen, what happened to each
/// file; how much of it depends on the log verbosity. The old log is carried along below the entry, or rotated. Always
/// true; the log buffers are empty afterwards. In a dry run nothing is written.
///
/// The new log is written whole under the work file's name and then takes the log's name: a process that dies leaves
/// the old log or the new one, and at most the work file. A failed file operation is a run-time error.
bool Write_Process_Log(Program& program);

/// The log leaves its name and becomes the newest of five generations. False: there was none.
bool Rotate_Process_Logs(Program& program);

/// The text of an entry as the buffers and options stand, lines ended by CR LF.
QString Log_Entry(const Program& program);
