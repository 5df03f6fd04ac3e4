#include "support/whole_file.h"

#include "support/paths.h"
#include "support/run_time_error.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <cerrno>
#include <filesystem>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// A short write leaves no number behind: then the disk was full.
[[noreturn]] static void Raise_Writing_Failed(const QString& path)
{
    Raise_File_Error(u"Writing a file"_s, path, errno != 0 ? errno : ENOSPC);
}

/// Where a chain of links ends, whether or not a file is there.
static QString Behind_Links(const QString& path)
{
    constexpr int longest_chain = 40;
    QString target = path;
    for (int link = 0; link < longest_chain && QFileInfo(target).isSymLink(); ++link)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

/// The name that QSaveFile gets. It writes to a name that is longer by seven bytes, which not every name has room for.
static QString Name_With_Room(const QString& path)
{
    constexpr qsizetype longest_name = 255 - 7;
    if (QFile::encodeName(File_Name_Of(path)).size() <= longest_name)
        return path;
    return path.left(path.lastIndexOf(Path_Separator) + 1) + u".vantorra-"_s +
           QUuid::createUuid().toString(QUuid::Id128).left(12);
}

Whole_File::Whole_File(const QString& path, QIODevice::OpenMode more)
    : path_(Behind_Links(path)), file_(Name_With_Room(path_))
{
    const QString doing = u"Opening a file to write it"_s;
    const QFileInfo there(path_);
    if (there.exists() && !there.isFile())
        throw Run_Time_Error(Error_Number::Path_File_Access_Error, doing, path, {},
                             u"Something that is no plain file has that name. Move it away, then try again."_s);
    if (there.exists() && !there.isWritable())
        Raise_File_Error(doing, path, EACCES);
    errno = 0;
    if (!file_.open(QIODevice::WriteOnly | more))
        Raise_File_Error(doing, path, errno);
}

void Whole_File::Append(const QByteArray& bytes)
{
    errno = 0;
    if (file_.write(bytes) != bytes.size())
        Raise_Writing_Failed(path_);
}

void Whole_File::Flush_To_Disk()
{
    errno = 0;
    // QSaveFile's commit doesn't tell that its own flush has failed, and then gives an empty file the final name.
    if (!file_.flush() || (::fsync(file_.handle()) != 0 && errno != EINVAL))
        Raise_Writing_Failed(path_);
}

void Whole_File::Take_Its_Name()
{
    errno = 0;
    if (!file_.commit())
        Raise_Writing_Failed(path_);
    const QString written = file_.fileName();
    if (written == path_)
        return;
    if (QFileInfo::exists(path_))
        QFile::setPermissions(written, QFile::permissions(path_));
    std::error_code error;
    std::filesystem::rename(QFileInfo(written).filesystemFilePath(), QFileInfo(path_).filesystemFilePath(), error);
    if (!error)
        return;
    QFile::remove(written);
    Raise_File_Error(u"Writing a file"_s, path_, error.value());
}

void Write_Whole_File(const QString& path, const QByteArray& content, QIODevice::OpenMode more)
{
    Whole_File file(path, more);
    file.Append(content);
    file.Flush_To_Disk();
    file.Take_Its_Name();
}
