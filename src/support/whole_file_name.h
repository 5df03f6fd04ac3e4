#pragma once

#include <QString>

/// The name that QSaveFile is given for a file that is to be written whole: `path` itself where QSaveFile's own last
/// step does, or another one in the same folder, from which the file has to take its place.
QString Name_To_Write_Under(const QString& path);
