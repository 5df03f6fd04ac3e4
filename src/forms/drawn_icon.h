#pragma once

#include <QIcon>
#include <QString>

/// A picture of src/forms/images by its file's name without extension, sharp at every size that the program shows.
QIcon Drawn_Icon(const QString& name);
