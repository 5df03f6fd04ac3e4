#pragma once

#include <QString>

/// Amounts as people read them.

/// "12.4 GB", in units of a thousand.
QString Size_Text(double bytes);

/// "3:10", or from an hour on, and with `hours` always, "0:03:10".
QString Time_Text(qint64 seconds, bool hours = false);
