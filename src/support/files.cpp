#include "support/files.h"

#include "support/disk_names.h"
#include "support/paths.h"
#include "support/plain_file.h"
#include "support/run_time_error.h"
#include "support/text.h"

#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

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
