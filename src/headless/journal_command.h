#pragma once

#include <QString>
#include <cstdio>

/// `vantorra-batch journal`: the last result of each video that the journals in `app_folder` know, of all machines that
/// share the folder, in the order of the paths; with `only_failed` those that failed. A line each, and the counts
/// below, or with `json` one object a line. False if there is no result at all: nothing is printed then.
bool Print_Journal(const QString& app_folder, bool only_failed, bool json, std::FILE* out);
