#pragma once

#include "common/test_program.h" // prints texts as texts

#include <QString>
#include <QStringList>
#include <vector>

/// The text of a file of the sources, named relative to their top folder; fails the test if it isn't there.
QString Source_Text(const QString& path);

/// Paths of the sources below a top folder, relative to it, as "room/file.cpp".
QStringList Source_Files(const QString& top_folder = u"src"_s);

/// What stands under a second-level heading, up to the next one; empty if there is no such heading.
QString Chapter(const QString& page, const QString& heading);

/// The rows of all tables in `text`, head rows and rules left out, as trimmed cells.
std::vector<QStringList> Table_Rows(const QString& text);

/// A check box's caption without what changes while the program runs: "Set File Title", "Apply custom Audio Filter".
QString Caption_Stem(const QString& caption);
