#pragma once

#include "support/string_builder.h"

/// The three log buffers of a run. Lines are separated by CR LF.
struct Log_Buffers
{
    clsStringBuilder Log_Results; ///< finished lines of the entry, in the log's order; "@" lines are marks only
    clsStringBuilder Log_Faults;  ///< notes and faults of the file in work
    clsStringBuilder Log_Console; ///< what mkvmerge printed
    bool Write_Failed = false;    ///< the log itself could not be written: the program's end doesn't try again
};
