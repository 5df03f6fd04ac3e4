#pragma once

#include <QDir>
#include <QList>
#include <QStringList>
#include <QUrl>

/// What was dropped on a form, as plain data: views make it from their toolkit's event.
struct Drop_Data
{
    bool Has_File_List = false; ///< False: a text, a picture, anything that names no files
    QStringList Paths;          ///< in the order dropped; an item that is no local file or folder is empty
};

/// The record of dropped URLs, as a desktop delivers them.
inline Drop_Data Drop_Data_Of(const QList<QUrl>& urls)
{
    Drop_Data data{.Has_File_List = !urls.isEmpty(), .Paths = {}};
    for (const QUrl& url : urls)
        data.Paths += QDir::toNativeSeparators(url.toLocalFile());
    return data;
}
