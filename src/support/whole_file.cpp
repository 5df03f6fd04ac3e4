#include "support/whole_file.h"

#include "support/disk_steps.h"
#include "support/last_error.h"
#include "support/run_time_error.h"
#include "support/whole_file_name.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>

using namespace Qt::StringLiterals;

/// A short write leaves no number behind: then the disk was full.
[[noreturn]] static void Raise_Writing_Failed(const QString& path, int error)
{
    Raise_File_Error(u"Writing a file"_s, path, error != 0 ? error : ENOSPC);
}

Whole_File::Whole_File(const QString& path, QIODevice::OpenMode more)
    : path_(Behind_Links(path)), file_(Name_To_Write_Under(path_))
{
    const QString doing = u"Opening a file to write it"_s;
    const QFileInfo there(path_);
    if (there.exists() && !there.isFile())
        throw Run_Time_Error(Error_Number::Path_File_Access_Error, doing, path, {},
                             u"Something that is no plain file has that name. Move it away, then try again."_s);
    if (there.exists() && !there.isWritable())
        Raise_File_Error(doing, path, EACCES);
    Forget_Last_Error();
    if (!file_.open(QIODevice::WriteOnly | more))
        Raise_File_Error(doing, path, Last_Error());
}

void Whole_File::Append(const QByteArray& bytes)
{
    Forget_Last_Error();
    if (file_.write(bytes) != bytes.size())
        Raise_Writing_Failed(path_, Last_Error());
}

void Whole_File::Flush_To_Disk()
{
    Forget_Last_Error();
    // QSaveFile's commit doesn't tell that its own flush has failed, and then gives an empty file the final name.
    if (!file_.flush())
        Raise_Writing_Failed(path_, Last_Error());
    if (const int error = Sync_Open_File(file_); error != 0)
        Raise_Writing_Failed(path_, error);
}

void Whole_File::Take_Its_Name()
{
    Forget_Last_Error();
    if (!file_.commit())
        Raise_Writing_Failed(path_, Last_Error());
    const QString written = file_.fileName();
    if (written == path_)
        return;
    const bool is_there = QFileInfo::exists(path_);
    const int error = Take_The_Place_Of(written, path_);
    if (error == 0)
        return;
    // Where the step has failed half-way it is all that is left.
    if (!is_there || QFileInfo::exists(path_))
        QFile::remove(written);
    Raise_File_Error(u"Writing a file"_s, path_, error);
}

void Write_Whole_File(const QString& path, const QByteArray& content, QIODevice::OpenMode more)
{
    Whole_File file(path, more);
    file.Append(content);
    file.Flush_To_Disk();
    file.Take_Its_Name();
}
