#pragma once

#include <QString>

/// What the platform calls things that the program's own words call by one name everywhere.

/// A program's name on disk: "mkvmerge", on Windows "mkvmerge.exe".
QString Executable_Name(const QString& program);

/// English as mkvmerge's "--ui-language" has it: "en_US", on Windows "en".
QString Tool_Language();
