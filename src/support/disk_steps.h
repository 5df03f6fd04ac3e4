#pragma once

#include "support/file_identity.h"

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

class QFileDevice;

/// Single steps on the disk that a careful batch is made of. Each is one call of the system where that is possible, so
/// that a kill at any moment leaves the state before it or the one behind it. Errors are numbers of <cerrno>, 0 is
/// none; an error of Windows that has no such number is the system's own above First_Own_Error.

inline constexpr int First_Own_Error = 10'000; ///< the system's own error 0

/// What stands in a folder under a name.
enum class Entry_Kind
{
    File,   ///< a regular file, or a link to one
    Folder, ///< a folder, or a link to one
    Lost,   ///< a link that leads nowhere
    Other,  ///< a pipe, a socket, a device
    Unknown ///< it couldn't be asked
};

struct Folder_Entry
{
    QString Name; ///< Text_Of_Name
    Entry_Kind Kind = Entry_Kind::Unknown;
};

/// All entries of a folder as the system lists them; `error` as for List_Entries.
std::vector<Folder_Entry> Read_Entries(const QString& folder, int& error);

/// All entries of a folder, by name, without regard to case. `error` is 0, or why the listing didn't begin or broke
/// off.
std::vector<Folder_Entry> List_Entries(const QString& folder, int& error);

/// A file held open from its first look to the last, so that its number can't pass to another file.
class Held_File
{
  public:
    Held_File() = default;
    Held_File(const Held_File&) = delete;
    Held_File& operator=(const Held_File&) = delete;
    ~Held_File();

    /// Opens a regular file to read it; never waits, as a pipe would make it. The error that says why not.
    int Open(const QString& path);

    /// True if the name still leads to that file, and size and time of change are as they were.
    bool Is_Still_There() const;

    const File_Identity& Identity() const { return identity_; }

  private:
    std::intptr_t handle_ = -1; ///< the system's
    QString path_;
    File_Identity identity_;
};

/// Where a name leads in the end: what a link there, and the links behind it, lead to; else `path` itself.
QString Behind_Links(const QString& path);

/// What a name itself is, links not followed; nothing where there is no such name.
std::optional<File_Identity> Identity_Of_Name(const QString& path);

/// Which calls a file system is taken to know.
struct Rename_Ways
{
    bool Without_Replacing = true;
    bool Hard_Links = true;
};

struct Rename_Result
{
    int Error = 0;       ///< EEXIST: the name is taken
    bool Guarded = true; ///< false: no call could keep others from taking the name meanwhile; it was looked at first
};

/// Gives a file another name in the same file system, and never takes the place of anything.
Rename_Result Rename_To_Free_Name(const QString& from, const QString& to, Rename_Ways ways = {});

/// Gives a file another name in the same file system, and takes the place of a file that has it.
int Rename_Onto(const QString& from, const QString& to);
/// Gives a file the name of another one in the same folder, whose place it takes in one step, with that one's
/// permissions; the name may be free, too. If it fails both are as they were.
int Take_The_Place_Of(const QString& from, const QString& to);
/// Gives a file a second name in the same file system; EEXIST if it is taken.
int Give_Second_Name(const QString& path, const QString& second);

/// Whatever was written is on the disk when these return.
int Sync_File(const QString& path);
int Sync_Folder(const QString& folder);
/// The same for a file of Qt's that is open for writing; what it still holds itself has to be flushed ahead.
int Sync_Open_File(const QFileDevice& file);

/// Makes a folder that only its owner may look into; on Windows, where a file keeps the rights that it was made under
/// wherever it is moved to, one with the rights of the folder that it is in.
int Make_Private_Folder(const QString& path);
/// Makes a folder and those above it that are missing, each of them on the disk before what it holds can be.
int Make_Folders(const QString& path);
/// Makes an empty file; EEXIST if the name is taken.
int Make_Empty_File(const QString& path);
/// These remove for good: only for what we made ourselves.
int Remove_Own_File(const QString& path);
int Remove_Own_Folder(const QString& path);

/// Adds `text` to the end of a file by one write, making it if need be; `sync`: it is on the disk then. A line feed is
/// put ahead where the file doesn't end in one.
int Append_At_Once(const QString& path, const QByteArray& text, bool sync);

/// Bytes that may still be written below a folder; nothing if it can't be asked.
std::optional<std::uint64_t> Free_Bytes(const QString& folder);

/// The longest name that the folder's file system takes, as Length_On_Disk counts it.
int Longest_Name(const QString& folder);

/// "No space left on device": the system's words for an error.
QString System_Words(int error);

/// True if the error says that there is no room: on the disk, in a quota, in one file.
bool Is_Disk_Full(int error);
