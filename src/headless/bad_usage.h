#pragma once

#include <QString>

/// A mistake on the command line that shows only when the program looks at what it means: ends with the status of bad
/// usage.
struct Bad_Usage
{
    QString Text;
};
