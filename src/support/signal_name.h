#pragma once

#include <QString>

/// A signal as people know it: "SIGKILL (9)"; one without a name of its own is its number.
QString Signal_Name(int signal_number);
