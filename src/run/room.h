#pragma once

#include "state/program.h"

#include <QString>
#include <cstdint>

/// Whether an output will fit, told before hours of work instead of behind them.

struct Room_Check
{
    QString Failure;   ///< in words: it can't fit
    QString Warning;   ///< in words: it may not fit
    double Needed = 0; ///< bytes, at a guess
};

/// What the output of the assembled command needs, by the bit rates of the tracks that stay and the sizes of the files
/// that are added, against what is free below the target. `taken` bytes of that are for others.
Room_Check Check_Room(const Program& program, double taken);

/// "4.1 GB", in powers of 1000.
QString Size_Text(std::uint64_t bytes);
