#pragma once

#include <QString>

struct Batch_Options;
struct Program;

/// Why a run was refused, in the words of the command line: which folder is missing or unfit and what to do; empty
/// where the message box has said all.
QString Explain_Refusal(const Program& program, const Batch_Options& options);
