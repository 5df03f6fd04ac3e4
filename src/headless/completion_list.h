#pragma once

#include <QString>
#include <QStringList>

/// What a shell may offer for a word of the command line: "options", "commands", "boxes", "keys" ("Section/Key" of each
/// key that is read), "values:Section/Key" (the words that the key knows) or "presets" (their names; `app_folder` is
/// what the command line names, and may be empty). Empty for anything else.
QStringList Completion_List(const QString& what, const QString& app_folder);
