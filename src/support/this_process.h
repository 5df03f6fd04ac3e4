#pragma once

#include <QString>
#include <cstdint>

/// A process among all that ever were on the machines that share a disk.
struct Process_Identity
{
    QString Host;
    QString Boot; ///< changes with each start of the machine
    std::int64_t Number = 0;
    std::int64_t Started = 0; ///< the system's clock ticks since its start; numbers are used again
};

Process_Identity This_Process();

/// What is known of a process from here.
enum class Process_Life
{
    Goes_On,
    Gone,
    Unknown ///< it was on another machine
};

Process_Life Life_Of(const Process_Identity& process);

/// The machine's name, as it may stand in a file's name.
QString Host_Name();
