#pragma once

#include "inspect/identified_file.h"

#include <QStringList>

/// True if a command would make its only input anew as it is: every track in its place with its name, language, flags
/// and size, title, tags, chapters and attachments, and nothing added. `arguments`: the assembled command's; `source`:
/// what mkvmerge says of the file that goes in. False for an option that isn't known to keep something: when in doubt
/// there is something to change.
bool Would_Change_Nothing(const QStringList& arguments, const Identified_File& source);
