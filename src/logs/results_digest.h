#pragma once

#include <QString>

struct Program;

/// Moves what was said about the current file from Log_Faults and Log_Console into Log_Results, sorted by the log
/// verbosity. `note_text` is empty except in report 13. Returns true.
bool Digest_Results(Program& program, const QString& note_text = {});

/// Shows the failure picture: four moves of 150 ms, then Process_Failed is set. Nothing happens while it is visible or
/// Process_Failed is set already.
void Flash_Process_Failed(Program& program);
