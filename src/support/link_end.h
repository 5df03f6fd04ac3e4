#pragma once

#include <QString>
#include <optional>

/// Where a name that is a symbolic link leads in the end, whether or not something is there: a path without a link in
/// its folders; empty for one that goes round in circles, and for one that can't be followed. Nothing for a name that
/// is no link.
std::optional<QString> End_Of_Links(const QString& path);

/// The folder's path without links; empty if it isn't there.
QString Without_Links(const QString& folder);
