#include "support/disk_names.h"
#include "support/file_identity.h"
#include "support/long_path.h"
#include "support/paths.h"
#include "support/system_calls_win32.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <windows.h>

using namespace Qt::StringLiterals;

static bool Has_Drive(const QString& path)
{
    return path.size() >= 2 && path[0].unicode() < 128 && path[0].isLetter() && path[1] == u':';
}

static bool Is_Share(const QString& path)
{
    return path.startsWith(u"\\\\"_s);
}

bool Is_Absolute_Path(const QString& path)
{
    return Is_Share(path) || (Has_Drive(path) && path.size() > 2 && path[2] == Path_Separator);
}

QString Absolute_Path(const QString& path, const QString& base)
{
    const QString native = QDir::toNativeSeparators(path);
    if (Is_Absolute_Path(native))
        return native;
    // "C:name" and "\name" go out from a current folder or drive that only the system knows.
    if (base.isEmpty() || Has_Drive(native) || native.startsWith(Path_Separator))
        return QDir::toNativeSeparators(QFileInfo(native).absoluteFilePath());
    return With_Separator(QDir::toNativeSeparators(base)) + native;
}

bool Is_Root(const QString& folder)
{
    if (!Is_Share(folder))
        return Has_Drive(folder) && (folder.size() == 2 || (folder.size() == 3 && folder[2] == Path_Separator));
    return folder.split(Path_Separator, Qt::SkipEmptyParts).size() <= 2;
}

QString Path_For_Tool(const QString& path)
{
    constexpr qsizetype longest = 259;
    const QStringList names = path.split(Path_Separator, Qt::SkipEmptyParts);
    // The drive's colon is none of a name's.
    const bool taken_for_another =
        std::any_of(names.begin() + (names.isEmpty() ? 0 : 1), names.end(),
                    [](const QString& name) { return !Why_Windows_Refuses(name).isEmpty(); });
    return path.size() > longest || taken_for_another ? Long_Path(path) : path;
}

/// A path without ":" never exists, but for a share's; one that leads into a stream of a file isn't that file.
static bool Can_Be_Asked_For(const QString& path)
{
    constexpr qsizetype behind_drive = 2;
    return !Has_Stand_Ins(path) && (Has_Drive(path) || Is_Share(path)) && !path.mid(behind_drive).contains(u':');
}

/// What the system says of a path, links followed; INVALID_FILE_ATTRIBUTES where nothing is.
static DWORD Attributes_Of(const QString& path)
{
    const DWORD attributes = ::GetFileAttributesW(Wide_Path(path));
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return attributes;
    return Open_Path(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING) ? attributes : INVALID_FILE_ATTRIBUTES;
}

static bool Is_There(const QString& path, bool folder)
{
    const DWORD attributes = Attributes_Of(path);
    return attributes != INVALID_FILE_ATTRIBUTES && ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) == folder;
}

bool File_Exists(const QString& path)
{
    return Can_Be_Asked_For(path) && !path.endsWith(Path_Separator) && Is_There(path, false);
}

bool Folder_Exists(const QString& path)
{
    return Can_Be_Asked_For(path) && Is_There(path, true);
}

bool Path_Exists(const QString& path)
{
    return !path.isEmpty() && Is_There(Absolute_Path(path), true);
}

bool Same_File(const QString& one, const QString& other)
{
    const std::optional<File_Identity> first = Identity_Of(one);
    const std::optional<File_Identity> second = Identity_Of(other);
    return first && second && first->Is_Same_File(*second);
}

bool Has_Other_Names(const QString& path)
{
    const DWORD attributes = ::GetFileAttributesW(Wide_Path(path));
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return false;
    const std::optional<File_Identity> file = Identity_Of(path);
    return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 || (file && file->Names > 1);
}
