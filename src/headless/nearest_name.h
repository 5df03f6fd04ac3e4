#pragma once

#include <QString>
#include <QStringList>

/// The name among `names` that somebody who typed `typed` will have meant; empty if none is near. Case doesn't count.
QString Nearest_Name(const QString& typed, const QStringList& names);

/// " Did you mean NAME?" for the nearest name, `prefix` ahead of it; empty if there is none.
QString Did_You_Mean(const QString& typed, const QStringList& names, const QString& prefix = {});
