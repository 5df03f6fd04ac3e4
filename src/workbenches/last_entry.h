#pragma once

struct Program;

/// For the end of a program that can't go on: digests what the buffers hold and writes it, tried once and only if a
/// buffer holds something and the log itself isn't what failed. Tells whether an entry was written; never throws.
bool Write_Last_Entry(Program& program);
