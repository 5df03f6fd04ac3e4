#pragma once

#include <QString>
#include <QStringList>

/// What a shell may offer for a word of the command line: "options", "commands", "boxes", "keys" ("Section/Key" of each
/// key that is read) or "values:Section/Key" (the words that the key knows). Empty for anything else.
QStringList Completion_List(const QString& what);
