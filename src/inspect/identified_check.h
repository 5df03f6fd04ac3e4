#pragma once

#include "inspect/identified_file.h"
#include "inspect/output_check.h"

#include <vector>

struct Program;

/// The second half of an output's check: what the tools say of it, and of what went in.

/// An added file that runs for as long as the source makes the output's duration, however early the source's own
/// picture ends. So where something is added, ffprobe is asked: a warning if the picture is shorter than the source
/// lets it be. `seconds`: the whole source, if known.
void Check_Picture(Program& program, const Asked_Output& asked, const QString& output, std::optional<double> seconds,
                   Check_Result& result);

/// Compares what went in with what came out, both as mkvmerge identifies them. `inputs` are in the order of
/// `asked.Inputs`.
void Compare_Identified(const Asked_Output& asked, const std::vector<Identified_File>& inputs,
                        const Identified_File& output, Check_Result& result);

/// For a source that is to go: asks mkvmerge about each input and the output, and compares. What couldn't be asked is a
/// warning.
void Check_Identified(Program& program, const Asked_Output& asked, const QString& output, Check_Result& result);
