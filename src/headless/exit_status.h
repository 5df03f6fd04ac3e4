#pragma once

/// The exit statuses of vantorra-batch. Scripts read them: they don't change.
enum Exit_Status : int
{
    Exit_Finished = 0,
    Exit_Refused = 1,
    Exit_Some_Failed = 2,
    Exit_Bad_Usage = 64,
    Exit_Run_Time_Error = 70,
    Exit_Halted = 130
};
