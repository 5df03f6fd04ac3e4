#include "support/disk_names.h"
#include "support/long_path.h"
#include "support/paths.h"

#include <QDir>
#include <QFileInfo>
#include <filesystem>

bool Is_Absolute_Path(const QString& path)
{
    return path.startsWith(Path_Separator);
}

QString Absolute_Path(const QString& path, const QString& base)
{
    return (base.isEmpty() ? QDir::current() : QDir(base)).absoluteFilePath(path);
}

bool Is_Root(const QString& folder)
{
    return folder == Path_Separator;
}

QString Path_For_Tool(const QString& path)
{
    return path;
}

/// A name that isn't valid UTF-8 is none that can be asked for by its text; see disk_names.h.
static bool Can_Be_Asked_For(const QString& path)
{
    return Is_Absolute_Path(path) && !Has_Stand_Ins(path);
}

bool File_Exists(const QString& path)
{
    return Can_Be_Asked_For(path) && QFileInfo(path).exists() && !QFileInfo(path).isDir();
}

bool Folder_Exists(const QString& path)
{
    return Can_Be_Asked_For(path) && QFileInfo(path).isDir();
}

bool Path_Exists(const QString& path)
{
    return !path.isEmpty() && QFileInfo(path).isDir();
}

bool Same_File(const QString& one, const QString& other)
{
    std::error_code error;
    return std::filesystem::equivalent(Native_Path(one), Native_Path(other), error) && !error;
}

bool Has_Other_Names(const QString& path)
{
    const std::filesystem::path file = Native_Path(path);
    std::error_code error;
    return std::filesystem::is_symlink(file, error) || std::filesystem::hard_link_count(file, error) > 1;
}
