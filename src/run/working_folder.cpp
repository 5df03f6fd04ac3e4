#include "run/working_folder.h"

#include "inspect/video_names.h"
#include "support/disk_steps.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/string_builder.h"
#include "support/this_process.h"
#include "support/trash.h"
#include "support/whole_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

static const QString Name_Start = QStringLiteral(".vantorra-");

static QString Notes_Folder(const QString& app_folder)
{
    return With_Separator(app_folder) + u"Vantorra_Working"_s + Path_Separator;
}

/// What a note says of a folder. The identity is only known behind its making.
struct Folder_Note
{
    QString Path;
    std::optional<File_Identity> Folder;
    Process_Identity Process;
};

static QByteArray Text_Of(const Folder_Note& note)
{
    // Numbers as text: JSON's are no 64-bit numbers.
    QJsonObject object{{u"path"_s, note.Path},
                       {u"host"_s, note.Process.Host},
                       {u"boot"_s, note.Process.Boot},
                       {u"process"_s, QString::number(note.Process.Number)},
                       {u"started"_s, QString::number(note.Process.Started)}};
    if (note.Folder)
        object.insert(u"inode"_s, QString::number(note.Folder->Number));
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

static std::optional<Folder_Note> Read_Note(const QString& file)
{
    QFile note(file);
    if (!note.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(note.readAll()).object();
    Folder_Note read{.Path = object[u"path"_s].toString(),
                     .Folder = {},
                     .Process = {.Host = object[u"host"_s].toString(),
                                 .Boot = object[u"boot"_s].toString(),
                                 .Number = object[u"process"_s].toString().toLongLong(),
                                 .Started = object[u"started"_s].toString().toLongLong()}};
    if (object.contains(u"inode"_s))
        read.Folder = File_Identity{.Number = object[u"inode"_s].toString().toULongLong()};
    const bool whole = Is_Working_Name(File_Name_Of(read.Path)) && !read.Process.Host.isEmpty();
    return whole ? std::optional(read) : std::nullopt;
}

static QString Random_Word()
{
    return QString::number(QRandomGenerator::system()->generate64(), 36);
}

/// Writes a note so that it is on the disk before its folder can be. Returns why not.
static QString Write_Note(const QString& file, const Folder_Note& note)
{
    try {
        Write_Whole_File(file, Text_Of(note));
    } catch (const Run_Time_Error& error) {
        return error.Message().simplified();
    }
    return {};
}

QString Working_Folder::Make(const QString& target, const QString& app_folder)
{
    if (!path_.isEmpty())
        return {};
    const QString word = Random_Word();
    const QString folder = With_Separator(target) + Name_Start + word;
    const QString notes = Notes_Folder(app_folder);
    const QString file = notes + word + u".json"_s;
    QDir().mkpath(notes);
    Folder_Note note{.Path = folder, .Folder = {}, .Process = This_Process()};
    if (QString why = Write_Note(file, note); !why.isEmpty()) {
        Remove_Own_File(file);
        return u"The working folder couldn't be noted in the program's folder: "_s + why;
    }
    const int error = Make_Private_Folder(folder);
    if (error != 0) {
        Remove_Own_File(file);
        return u"No working folder could be made in the target folder: "_s + System_Words(error);
    }
    path_ = folder + Path_Separator;
    note_ = file;
    // Where this fails the note still names the folder, which then counts only while it is empty.
    note.Folder = Identity_Of_Name(folder);
    Write_Note(file, note);
    return {};
}

QString Working_Folder::Try_Name(const QString& name) const
{
    int error = Make_Empty_File(path_ + name);
    if (error == 0)
        error = Remove_Own_File(path_ + name);
    return error == 0 ? QString() : System_Words(error);
}

std::int64_t Working_Folder::Bytes() const
{
    std::int64_t bytes = 0;
    int error = 0;
    if (!path_.isEmpty())
        for (const Folder_Entry& entry : List_Entries(path_, error))
            if (const auto file = Identity_Of_Name(path_ + entry.Name))
                bytes += file->Size;
    return bytes;
}

void Working_Folder::Empty() const
{
    int error = 0;
    if (!path_.isEmpty())
        for (const Folder_Entry& entry : List_Entries(path_, error))
            Remove_Own_File(path_ + entry.Name);
}

void Working_Folder::Remove()
{
    if (path_.isEmpty())
        return;
    Empty();
    // What can't be removed keeps its note: the next run tells of it.
    if (Remove_Own_Folder(path_.chopped(1)) == 0)
        Remove_Own_File(note_);
    path_.clear();
}

/// True if the noted folder is what stands there. A folder whose making the note doesn't know yet must be empty.
static bool Is_Noted_Folder(const Folder_Note& note)
{
    const std::optional<File_Identity> there = Identity_Of_Name(note.Path);
    const QFileInfo info(note.Path);
    if (!there || info.isSymLink() || !info.isDir())
        return false;
    return note.Folder ? note.Folder->Number == there->Number : QDir(note.Path).isEmpty();
}

QStringList Clean_Up_Working_Folders(const QString& app_folder)
{
    QStringList lines;
    const QString notes = Notes_Folder(app_folder);
    int error = 0;
    for (const Folder_Entry& entry : List_Entries(notes, error)) {
        const std::optional<Folder_Note> note = Read_Note(notes + entry.Name);
        if (!note || Life_Of(note->Process) != Process_Life::Gone)
            continue;
        // The target's disk may be away for now: then the note has to stay.
        if (!Folder_Exists(note->Path.left(note->Path.lastIndexOf(Path_Separator) + 1)))
            continue;
        if (Is_Noted_Folder(*note)) {
            clsStringBuilder faults;
            const bool moved = Delete_To_Recycle(note->Path, faults);
            lines += u"A run that was killed left the working folder \"%1\" behind: %2."_s.arg(
                note->Path, moved ? u"it is in the trash now"_s : u"the trash refused it, so it stays"_s);
            if (!moved)
                continue;
        }
        Remove_Own_File(notes + entry.Name);
    }
    return lines;
}
