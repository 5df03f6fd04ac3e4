#pragma once

#include <QStringList>
#include <cstdio>
#include <functional>

/// vantorra-batch from its command line to its exit status. `arguments` begins with the program's name;
/// `stop_requested` says whether the run is to be halted.
///
/// The status is 0 finished and no failure seen, 1 refused before the loop, 2 finished and some file failed
/// (or a source that should go was kept, or --check found a problem), 64 bad
/// usage, 70 run-time error, 130 halted.
int Run_Batch_Program(const QStringList& arguments, std::FILE* out, std::FILE* err,
                      const std::function<bool()>& stop_requested);
