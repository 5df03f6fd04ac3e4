#include "support/files.h"

#include "support/disk_names.h"
#include "support/disk_steps.h"
#include "support/last_error.h"
#include "support/paths.h"
#include "support/plain_file.h"
#include "support/run_time_error.h"
#include "support/text.h"

#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <filesystem>
#include <utility>

using namespace Qt::StringLiterals;

/// A name raised to upper case letter by letter, which never changes its length.
static QString Raised(QString name)
{
    for (QChar& letter : name)
        letter = letter.toUpper();
    return name;
}

QStringList List_Files(const QString& folder)
{
    QStringList names;
    int error = 0;
    for (Folder_Entry& entry : List_Entries(folder, error))
        if (entry.Kind == Entry_Kind::File)
            names += std::move(entry.Name);
    return names;
}

QString Why_Unreadable(const QString& folder)
{
    // Only what stands first is read: a folder may hold very much.
    std::error_code error;
    const std::filesystem::directory_iterator first(Native_Path(folder), error);
    return error ? System_Words(error.value()) : QString();
}

QString As_On_Disk(const QString& path)
{
    const bool is_folder = path.endsWith(Path_Separator);
    const QString plain = is_folder ? path.chopped(1) : path;
    // Where capitals make no other name, what is there may be called otherwise, and what isn't is by no other name.
    if (Identity_Of(plain).has_value() == (Case_Of_Names == Qt::CaseSensitive))
        return path;
    const QString folder = plain.left(plain.lastIndexOf(Path_Separator) + 1);
    const QString wanted = Raised(File_Name_Of(plain));
    QString found;
    int error = 0;
    for (const Folder_Entry& entry : Read_Entries(folder, error))
        if (Raised(entry.Name) == wanted && (found.isEmpty() || entry.Name < found))
            found = entry.Name;
    return found.isEmpty() ? path : folder + found + (is_folder ? QString(Path_Separator) : QString());
}

Folder_Counts Count_Folder(const QString& folder)
{
    Folder_Counts counts;
    int error = 0;
    for (const Folder_Entry& entry : Read_Entries(folder, error))
        ++(entry.Kind == Entry_Kind::Folder ? counts.Folders : counts.Files);
    return counts;
}

QByteArray Read_File(const QString& path)
{
    QFile file;
    Open_Plain_File(file, path, u"Opening a file to read it"_s);
    Forget_Last_Error();
    // One byte more than there is: a file may grow while it is read. Asked for by the most that is taken, all of that
    // memory would be touched on Windows.
    const qint64 size = std::min(file.size(), Longest_Side_File);
    QByteArray content = file.size() > Longest_Side_File ? QByteArray() : file.read(size + 1);
    if (content.size() > size)
        content += file.read(Longest_Side_File - size);
    if (file.error() != QFileDevice::NoError)
        Raise_File_Error(u"Reading a file"_s, path, Last_Error());
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
