#include "support/files.h"

#include "support/disk_names.h"
#include "support/paths.h"
#include "support/plain_file.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/string_builder.h"
#include "support/text.h"
#include "support/whole_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QStringDecoder>
#include <QUrl>
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

QByteArray Read_File(const QString& path)
{
    QFile file;
    Open_Plain_File(file, path, u"Opening a file to read it"_s);
    errno = 0;
    // One byte more than is taken: a file may grow while it is read.
    QByteArray content = file.size() > Longest_Side_File ? QByteArray() : file.read(Longest_Side_File + 1);
    if (file.error() != QFileDevice::NoError)
        Raise_File_Error(u"Reading a file"_s, path, errno);
    if (file.size() > Longest_Side_File || content.size() > Longest_Side_File)
        throw Run_Time_Error(Error_Number::Path_File_Access_Error, u"Reading a file"_s, path, {},
                             u"It is larger than 64 MB, far more than such a file ever needs. Move it away."_s);
    return content;
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
            lines += Text_Of_Bytes(line);
    }
    if (lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
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

static bool Rename_Without_Replacing(const QString& from, const QString& to)
{
    std::error_code error;
    if (!QFileInfo::exists(to))
        fs::rename(Native_Path(from), Native_Path(to), error);
    return !error && !QFileInfo::exists(from);
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
    if (!Can_Be_Described(shorter) || !Rename_Without_Replacing(path, shorter))
        return false;
    QString in_trash;
    if (!QFile::moveToTrash(shorter, &in_trash)) {
        Rename_Without_Replacing(shorter, path);
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
    if (fs::symlink_status(Native_Path(plain), error).type() == fs::file_type::not_found)
        return true;
    if (!Has_Stand_Ins(plain) && Trash_Can_Be_Made() &&
        (Is_Too_Long_For_Trash(plain) ? Trash_Under_Shorter_Name(plain)
                                      : Can_Be_Described(plain) && QFile::moveToTrash(plain)))
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
