#pragma once

#include <QString>

class clsStringBuilder;

/// The desktop's trash (freedesktop), or the recycle bin of Windows: the one place that anything of the person's is
/// ever removed to.

/// Moves a file or a folder to the trash. False only if something existed there and stays: then `faults` gets the line
/// "-- Could not be moved to the trash - " and the quoted path. Nothing is ever removed for good.
bool Delete_To_Recycle(const QString& path, clsStringBuilder& faults);
/// Delete_To_Recycle if the path names an existing file.
void Recycle_If_Exists(const QString& path, clsStringBuilder& faults);
/// Moves every file and folder of `folder` whose name begins with `prefix`, taken literally but for the case of its
/// letters, to the trash. False if one stays.
bool Recycle_By_Prefix(const QString& folder, const QString& prefix, clsStringBuilder& faults);
/// The line that `faults` gets for what stays where it is.
void Tell_Of_Untrashed(const QString& path, clsStringBuilder& faults);
