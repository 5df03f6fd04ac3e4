#pragma once

#include "headless/batch_options.h"

#include <cstdio>

class Batch_Report;
struct Program;

/// Takes the --set assignments into the program, to be read with its settings. Throws Bad_Usage for a key that doesn't
/// exist; warns of one that is never read.
void Take_Assignments(Program& program, const QStringList& assignments, Batch_Report& report);

/// `vantorra-batch settings`: every key with its value in force and what a missing key reads as, as a table or, with
/// `json`, as one object a line.
void Print_Settings(const Program& program, bool json, std::FILE* out);
