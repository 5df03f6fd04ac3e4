#include "forms/drawn_icon.h"

#include <QDir>

using namespace Qt::StringLiterals;

/// The build has drawn each picture at some sizes: nothing there draws SVG.
QIcon Drawn_Icon(const QString& name)
{
    QIcon icon;
    const QDir images(u":/images"_s);
    for (const QString& file : images.entryList({name + u"-*.png"_s}))
        icon.addFile(images.filePath(file));
    return icon;
}
