#pragma once

#include <QString>

/// What ended a child whose exit status is below 0, in words that go on after "was ended by ": "the signal SIGKILL
/// (9)"; on Windows "an access violation (0xC0000005)".
QString What_Ended(int exit_status);
