#include "support/trash.h"

#include "support/disk_names.h"
#include "support/disk_steps.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/whole_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QUrl>
#include <filesystem>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// Qt takes the current folder for the trash where the person's own trash can't be made, so that is tried first.
static bool Trash_Can_Be_Made()
{
    const QDir trash(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Trash"_s);
    return trash.mkpath(u"files"_s) && trash.mkpath(u"info"_s);
}

/// Where a file of that path may be trashed: the person's own trash, and that of another disk.
static QStringList Trashes_For(const QString& path)
{
    QStringList trashes = {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Trash"_s};
    const QStorageInfo disk(QFileInfo(path).absolutePath());
    if (disk != QStorageInfo(QDir::home())) {
        const QString person = QString::number(::getuid());
        const QString top = With_Separator(disk.rootPath());
        trashes << top + u".Trash/"_s + person << top + u".Trash-"_s + person;
    }
    return trashes;
}

/// The longest name that the trash gives a description: with the number of a name that is there already.
static QString Description_Of(const QString& path)
{
    return File_Name_Of(path) + u"-0000.trashinfo"_s;
}

static bool Is_Too_Long_For_Trash(const QString& path)
{
    constexpr qsizetype longest_name = 255;
    return QFile::encodeName(Description_Of(path)).size() > longest_name;
}

/// Qt tries one name after the other, for ever, while it can't make the file that describes what it trashes: where the
/// name is too long for it, the trash can't be written to, or the disk is full. So that file is tried first; the name
/// isn't too long by then.
static bool Can_Be_Described(const QString& path)
{
    const QString description = Description_Of(path);
    for (const QString& trash : Trashes_For(path)) {
        const QString folder = trash + u"/info"_s;
        QFile tried(folder + Path_Separator + description);
        // Where there is no such folder yet Qt makes it, or gives up.
        if (!QFileInfo(folder).isDir() || tried.exists())
            continue;
        if (!tried.open(QIODevice::NewOnly | QIODevice::WriteOnly))
            return false;
        tried.remove();
    }
    return true;
}

/// A file's name cut so that the trash can describe it; its extension stays if it is a short one.
static QString Shortened(const QString& name)
{
    constexpr qsizetype room = 200;
    constexpr qsizetype longest_extension = 20;
    QString head = name;
    while (QFile::encodeName(head).size() > room || head.back().isHighSurrogate())
        head.chop(1);
    const QString extension = Get_Extension(name);
    return extension.size() > longest_extension ? head : head + u'.' + extension;
}

/// The trash restores to the path in the description of what it holds, so the whole name belongs there.
static void Describe_By_Whole_Name(const QString& in_trash, const QString& shorter, const QString& whole)
{
    const qsizetype files = in_trash.lastIndexOf(u"/files/"_s);
    const QString description = in_trash.left(files) + u"/info/"_s + File_Name_Of(in_trash) + u".trashinfo"_s;
    try {
        Write_Whole_File(
            description,
            Read_File(description).replace(QUrl::toPercentEncoding(shorter), QUrl::toPercentEncoding(whole)));
    } catch (const Run_Time_Error&) {
        return; // then it is restored under the shorter name
    }
}

/// Moves a file to the trash whose name is too long for it. False: it is where it was.
static bool Trash_Under_Shorter_Name(const QString& path)
{
    const QString name = File_Name_Of(path);
    const QString shorter_name = Shortened(name);
    const QString shorter = path.chopped(name.size()) + shorter_name;
    if (!Can_Be_Described(shorter) || Rename_To_Free_Name(path, shorter).Error != 0)
        return false;
    QString in_trash;
    if (!QFile::moveToTrash(shorter, &in_trash)) {
        Rename_To_Free_Name(shorter, path);
        return false;
    }
    Describe_By_Whole_Name(in_trash, shorter_name, name);
    return true;
}

bool Delete_To_Recycle(const QString& path, clsStringBuilder& faults)
{
    QString plain = path;
    while (plain.size() > 1 && plain.endsWith(Path_Separator))
        plain.chop(1);
    // A dangling link exists as a thing to move though it names no file.
    std::error_code error;
    if (std::filesystem::symlink_status(Bytes_Of_Name(plain).toStdString(), error).type() ==
        std::filesystem::file_type::not_found)
        return true;
    if (!Has_Stand_Ins(plain) && Trash_Can_Be_Made() &&
        (Is_Too_Long_For_Trash(plain) ? Trash_Under_Shorter_Name(plain)
                                      : Can_Be_Described(plain) && QFile::moveToTrash(plain)))
        return true;
    Tell_Of_Untrashed(plain, faults);
    return false;
}
