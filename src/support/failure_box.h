#pragma once

#include "support/operator.h"
#include "support/run_time_error.h"

/// The box for an error that the program goes on from: the error's own lines, then what to do about it.
Message_Box Failure_Box(const QString& title, const Run_Time_Error& error, const QString& advice);
