#pragma once

#include <QString>
#include <QStringList>

/// The folders that a run with "Include Subfolders" walks.
struct Subfolders
{
    /// Relative to the videos' folder, each ending in a separator, in the order of the walk: a folder, then what lies
    /// below it, by name. The videos' folder itself is the empty text at the start.
    QStringList Paths{QString()};
    QStringList Unread; ///< "PATH: reason" of each that couldn't be listed (to its end)
};

/// All folders below `videos`. Links aren't followed; `target` and what lies below it, folders named "*_Attachments"
/// and working folders are left out. `videos` itself is listed by whoever walks it, so that its faults are told there.
Subfolders Find_Subfolders(const QString& videos, const QString& target);
