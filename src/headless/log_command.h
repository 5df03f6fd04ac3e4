#pragma once

#include <QString>
#include <cstdio>

/// `vantorra-batch log`: the first 500 lines of the process log in `app_folder`, which are the newest, or with `full`
/// all of it, however long. Lines end in LF, and other control characters are written out. A log that doesn't exist is
/// no error, prints nothing and gives false; one that can't be read is the run-time error of the file operation.
bool Print_Log(const QString& app_folder, bool full, std::FILE* out);
