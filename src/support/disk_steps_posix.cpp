#include "support/disk_steps.h"

#include "support/disk_names.h"

#include <QFileDevice>
#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// An open descriptor, closed at its end.
class Handle
{
  public:
    Handle(const QString& path, int flags, mode_t mode = 0)
        : number_(::open(Bytes_Of_Name(path).constData(), flags | O_CLOEXEC, mode))
    {}

    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    ~Handle()
    {
        if (number_ >= 0)
            ::close(number_);
    }

    int Number() const { return number_; }

    /// What the opening came to.
    int Error() const { return number_ >= 0 ? 0 : errno; }

  private:
    int number_;
};

static File_Identity Identity_From(const struct stat& status)
{
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    return {.Device = status.st_dev,
            .Number = status.st_ino,
            .Names = status.st_nlink,
            .Size = status.st_size,
            .Written_At = status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
}

static Entry_Kind Kind_Of(int folder, const dirent& entry)
{
    if (entry.d_type == DT_REG)
        return Entry_Kind::File;
    if (entry.d_type == DT_DIR)
        return Entry_Kind::Folder;
    struct stat status = {};
    if (::fstatat(folder, entry.d_name, &status, 0) != 0)
        return entry.d_type == DT_LNK ? Entry_Kind::Lost : Entry_Kind::Unknown;
    return S_ISREG(status.st_mode)   ? Entry_Kind::File
           : S_ISDIR(status.st_mode) ? Entry_Kind::Folder
                                     : Entry_Kind::Other;
}

std::vector<Folder_Entry> Read_Entries(const QString& folder, int& error)
{
    std::vector<Folder_Entry> entries;
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(Bytes_Of_Name(folder).constData()), ::closedir);
    error = open ? 0 : errno;
    if (!open)
        return entries;
    for (;;) {
        errno = 0;
        const dirent* entry = ::readdir(open.get());
        if (entry == nullptr)
            break;
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            entries.push_back({Text_Of_Name(entry->d_name), Kind_Of(::dirfd(open.get()), *entry)});
    }
    error = errno;
    return entries;
}

Held_File::~Held_File()
{
    if (handle_ >= 0)
        ::close(static_cast<int>(handle_));
}

int Held_File::Open(const QString& path)
{
    path_ = path;
    handle_ = ::open(Bytes_Of_Name(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (handle_ < 0)
        return errno;
    struct stat status = {};
    if (::fstat(static_cast<int>(handle_), &status) != 0)
        return errno;
    if (S_ISDIR(status.st_mode))
        return EISDIR;
    if (!S_ISREG(status.st_mode))
        return EINVAL;
    identity_ = Identity_From(status);
    return 0;
}

bool Held_File::Is_Still_There() const
{
    struct stat status = {};
    const std::optional<File_Identity> named = Identity_Of(path_);
    return named && handle_ >= 0 && ::fstat(static_cast<int>(handle_), &status) == 0 &&
           identity_.Is_Unchanged(Identity_From(status)) && identity_.Is_Unchanged(*named);
}

QString Behind_Links(const QString& path)
{
    constexpr int longest_chain = 40;
    QString target = path;
    for (int link = 0; link < longest_chain && QFileInfo(target).isSymLink(); ++link)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

std::optional<File_Identity> Identity_Of_Name(const QString& path)
{
    struct stat status = {};
    if (::lstat(Bytes_Of_Name(path).constData(), &status) != 0)
        return {};
    return Identity_From(status);
}

/// Two steps where there is no single one: the file has both names for a moment, which loses nothing.
static int Link_And_Unlink(const QByteArray& from, const QByteArray& to)
{
    if (::link(from.constData(), to.constData()) != 0)
        return errno;
    return ::unlink(from.constData()) == 0 ? 0 : errno;
}

Rename_Result Rename_To_Free_Name(const QString& from, const QString& to, Rename_Ways ways)
{
    const QByteArray source = Bytes_Of_Name(from);
    const QByteArray name = Bytes_Of_Name(to);
    int error = EINVAL;
    if (ways.Without_Replacing)
        error =
            ::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, name.constData(), RENAME_NOREPLACE) == 0 ? 0 : errno;
    if (error != EINVAL && error != ENOSYS && error != EOPNOTSUPP)
        return {error, true};

    error = ways.Hard_Links ? Link_And_Unlink(source, name) : EPERM;
    if (error != EPERM && error != ENOSYS && error != EOPNOTSUPP && error != EMLINK && error != EINVAL)
        return {error, true};

    struct stat status = {};
    if (::lstat(name.constData(), &status) == 0)
        return {EEXIST, false};
    return {::rename(source.constData(), name.constData()) == 0 ? 0 : errno, false};
}

int Rename_Onto(const QString& from, const QString& to)
{
    return ::rename(Bytes_Of_Name(from).constData(), Bytes_Of_Name(to).constData()) == 0 ? 0 : errno;
}

int Take_The_Place_Of(const QString& from, const QString& to)
{
    struct stat status = {};
    if (::stat(Bytes_Of_Name(to).constData(), &status) == 0)
        ::chmod(Bytes_Of_Name(from).constData(), status.st_mode);
    return Rename_Onto(from, to);
}

int Give_Second_Name(const QString& path, const QString& second)
{
    return ::link(Bytes_Of_Name(path).constData(), Bytes_Of_Name(second).constData()) == 0 ? 0 : errno;
}

static int Sync(const QString& path, int flags)
{
    const Handle handle(path, flags);
    if (handle.Number() < 0)
        return errno;
    return ::fsync(handle.Number()) == 0 ? 0 : errno;
}

int Sync_File(const QString& path)
{
    return Sync(path, O_RDONLY | O_NOFOLLOW);
}

int Sync_Folder(const QString& folder)
{
    const int error = Sync(folder, O_RDONLY | O_DIRECTORY);
    // Some file systems have nothing to do here and say so.
    return error == EINVAL ? 0 : error;
}

int Sync_Open_File(const QFileDevice& file)
{
    return ::fsync(file.handle()) == 0 || errno == EINVAL ? 0 : errno;
}

int Make_Private_Folder(const QString& path)
{
    return ::mkdir(Bytes_Of_Name(path).constData(), S_IRWXU) == 0 ? 0 : errno;
}

int Make_Folders(const QString& path)
{
    const QByteArray folder = Bytes_Of_Name(path.endsWith(u'/') && path.size() > 1 ? path.chopped(1) : path);
    struct stat status = {};
    if (::stat(folder.constData(), &status) == 0)
        return S_ISDIR(status.st_mode) ? 0 : ENOTDIR;
    if (const int error = errno; error != ENOENT)
        return error;
    const QString above = path.left(path.lastIndexOf(u'/', -2));
    if (const int error = above.isEmpty() ? ENOENT : Make_Folders(above); error != 0)
        return error;
    if (::mkdir(folder.constData(), S_IRWXU | S_IRWXG | S_IRWXO) != 0 && errno != EEXIST)
        return errno;
    return Sync_Folder(above);
}

int Make_Empty_File(const QString& path)
{
    const Handle handle(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    return handle.Error();
}

int Remove_Own_File(const QString& path)
{
    return ::unlink(Bytes_Of_Name(path).constData()) == 0 ? 0 : errno;
}

int Remove_Own_Folder(const QString& path)
{
    return ::rmdir(Bytes_Of_Name(path).constData()) == 0 ? 0 : errno;
}

/// True for a file that has something and doesn't end in a line feed: its last line was cut by a kill or a full disk.
static bool Is_Torn(int handle)
{
    const off_t size = ::lseek(handle, 0, SEEK_END);
    char last = '\n';
    return size > 0 && ::pread(handle, &last, 1, size - 1) == 1 && last != '\n';
}

int Append_At_Once(const QString& path, const QByteArray& text, bool sync)
{
    const Handle handle(path, O_RDWR | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK, S_IRUSR | S_IWUSR);
    if (handle.Number() < 0)
        return errno;
    struct stat status = {};
    if (::fstat(handle.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        return EINVAL;
    const QByteArray line = (Is_Torn(handle.Number()) ? "\n" : "") + text;
    const ssize_t written = ::write(handle.Number(), line.constData(), static_cast<std::size_t>(line.size()));
    if (written < 0)
        return errno;
    if (written < line.size())
        return ENOSPC;
    return !sync || ::fsync(handle.Number()) == 0 ? 0 : errno;
}

std::optional<std::uint64_t> Free_Bytes(const QString& folder)
{
    struct statvfs status = {};
    if (::statvfs(Bytes_Of_Name(folder).constData(), &status) != 0)
        return {};
    return static_cast<std::uint64_t>(status.f_bavail) * status.f_frsize;
}

int Longest_Name(const QString& folder)
{
    constexpr long usual = 255;
    const long longest = ::pathconf(Bytes_Of_Name(folder).constData(), _PC_NAME_MAX);
    return static_cast<int>(longest > 0 ? longest : usual);
}

QString System_Words(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

bool Is_Disk_Full(int error)
{
    return error == ENOSPC || error == EDQUOT || error == EFBIG;
}
