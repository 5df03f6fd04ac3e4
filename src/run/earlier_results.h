#pragma once

#include <QStringList>

struct Program;

/// Takes the options that hold for a whole run as they are now. `names` are the folder's videos.
void Sample_Options(Program& program, const QStringList& names);

/// Counts what the journal leaves to do of the list's ticked rows, as --failed and --resume choose, and shows the rows
/// that had their result in an earlier run so. For a careful batch only.
void Look_Into_Journal(Program& program);
