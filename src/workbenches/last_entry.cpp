#include "workbenches/last_entry.h"

#include "logs/process_log.h"
#include "logs/results_digest.h"
#include "state/program.h"

#include <exception>

bool Write_Last_Entry(Program& program)
{
    const Log_Buffers& logs = program.Logs;
    if (logs.Write_Failed || (logs.Log_Results.Is_Empty() && logs.Log_Faults.Is_Empty() && logs.Log_Console.Is_Empty()))
        return false;
    try {
        Digest_Results(program);
        return Write_Process_Log(program);
    } catch (const std::exception&) {
        return false;
    }
}
