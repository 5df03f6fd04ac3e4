#include "support/files.h"

#include "support/disk_names.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/string_builder.h"
#include "support/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QStringDecoder>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <unistd.h>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

static fs::path Native_Path(const QString& path)
{
    return fs::path(Bytes_Of_Name(path).toStdString());
}

/// A name raised to upper case letter by letter, which never changes its length.
static QString Raised(QString name)
{
    for (QChar& letter : name)
        letter = letter.toUpper();
    return name;
}

/// Sorts names as the system's home platform lists them: by code unit, capitals and small letters as one.
static QStringList By_Name(const std::vector<std::string>& entries)
{
    std::vector<std::pair<QString, QString>> raised;
    raised.reserve(entries.size());
    for (const std::string& entry : entries) {
        const QString name = Text_Of_Name(QByteArray::fromStdString(entry));
        raised.emplace_back(Raised(name), name);
    }
    std::sort(raised.begin(), raised.end());
    QStringList names;
    names.reserve(static_cast<qsizetype>(raised.size()));
    for (const auto& [key, name] : raised)
        names += name;
    return names;
}

QStringList List_Files(const QString& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(Native_Path(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code status_error;
        if (entry->is_regular_file(status_error))
            names.push_back(entry->path().filename().string());
    }
    return By_Name(names);
}

QString Why_Unreadable(const QString& folder)
{
    std::error_code error;
    const fs::directory_iterator first(Native_Path(folder), error);
    return error ? QString::fromLocal8Bit(std::strerror(error.value())) : QString();
}

QString As_On_Disk(const QString& path)
{
    const bool is_folder = path.endsWith(Path_Separator);
    const QString plain = is_folder ? path.chopped(1) : path;
    std::error_code error;
    if (fs::exists(Native_Path(plain), error))
        return path;
    const QString folder = plain.left(plain.lastIndexOf(Path_Separator) + 1);
    const QString wanted = Raised(File_Name_Of(plain));
    QString found;
    for (fs::directory_iterator entry(Native_Path(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        const QString name = Text_Of_Name(QByteArray::fromStdString(entry->path().filename().string()));
        if (Raised(name) == wanted && (found.isEmpty() || name < found))
            found = name;
    }
    return found.isEmpty() ? path : folder + found + (is_folder ? QString(Path_Separator) : QString());
}

Folder_Counts Count_Folder(const QString& folder)
{
    Folder_Counts counts;
    std::error_code error;
    for (fs::directory_iterator entry(Native_Path(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code status_error;
        ++(entry->is_directory(status_error) ? counts.Folders : counts.Files);
    }
    return counts;
}

/// errno's number for a failed QFile operation; Qt keeps it only until the next system call.
static int Failure_Number()
{
    return errno;
}

QByteArray Read_File(const QString& path)
{
    QFile file(path);
    errno = 0;
    if (!file.open(QIODevice::ReadOnly))
        Raise_File_Error(u"Opening a file to read it"_s, path, Failure_Number());
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        Raise_File_Error(u"Reading a file"_s, path, Failure_Number());
    return content;
}

/// A line without a mark that tells its encoding. Files from a system with an 8-bit code page aren't UTF-8; taken for
/// U+FFFD their letters would be lost once the file is written again.
static QString Decoded_Line(const QByteArray& line)
{
    return QUtf8StringView(line).isValidUtf8() ? QString::fromUtf8(line) : QString::fromLatin1(line);
}

QStringList Read_Lines(const QString& path)
{
    QByteArray bytes = Read_File(path);
    QStringList lines;
    if (const auto marked = QStringConverter::encodingForData(bytes)) {
        QStringDecoder decoder(*marked);
        QString text = decoder(bytes);
        lines = text.replace(Line_Break, u"\n"_s).replace(u'\r', u'\n').split(u'\n');
    } else {
        for (const QByteArray& line : bytes.replace("\r\n", "\n").replace('\r', '\n').split('\n'))
            lines += Decoded_Line(line);
    }
    if (lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

void Write_Whole_File(const QString& path, const QByteArray& content)
{
    QSaveFile file(path);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly))
        Raise_File_Error(u"Opening a file to write it"_s, path, QFileInfo(path).isDir() ? EISDIR : Failure_Number());
    if (file.write(content) != content.size() || !file.commit())
        Raise_File_Error(u"Writing a file"_s, path, Failure_Number());
}

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

/// Qt tries one name after the other, for ever, while it can't make the file that describes what it trashes: where the
/// name is too long for it, the trash can't be written to, or the disk is full. So that file is tried first.
static bool Can_Be_Described(const QString& path)
{
    constexpr qsizetype longest_name = 255;
    // With the number of a name that is there already.
    const QString description = File_Name_Of(path) + u"-0000.trashinfo"_s;
    if (QFile::encodeName(description).size() > longest_name)
        return false;
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

bool Delete_To_Recycle(const QString& path, clsStringBuilder& faults)
{
    QString plain = path;
    while (plain.size() > 1 && plain.endsWith(Path_Separator))
        plain.chop(1);
    // A dangling link exists as a thing to move though it names no file.
    std::error_code error;
    if (fs::symlink_status(Native_Path(plain), error).type() == fs::file_type::not_found)
        return true;
    if (!Has_Stand_Ins(plain) && Trash_Can_Be_Made() && Can_Be_Described(plain) && QFile::moveToTrash(plain))
        return true;
    faults.AppendLine(u"-- Could not be moved to the trash - \""_s + As_One_Line(plain) + u'"');
    return false;
}

void Recycle_If_Exists(const QString& path, clsStringBuilder& faults)
{
    if (File_Exists(path))
        Delete_To_Recycle(path, faults);
}

bool Recycle_By_Prefix(const QString& folder, const QString& prefix, clsStringBuilder& faults)
{
    bool all_gone = true;
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(Native_Path(folder), error), end; !error && entry != end; entry.increment(error))
        names.push_back(entry->path().filename().string());
    for (const QString& name : By_Name(names))
        if (name.startsWith(prefix, Qt::CaseInsensitive))
            all_gone = Delete_To_Recycle(With_Separator(folder) + name, faults) && all_gone;
    return all_gone;
}
