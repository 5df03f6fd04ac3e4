#include "support/file_identity.h"

#include "support/disk_names.h"

#include <sys/stat.h>

std::optional<File_Identity> Identity_Of(const QString& path)
{
    struct stat status = {};
    if (::stat(Bytes_Of_Name(path).constData(), &status) != 0)
        return {};
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    return File_Identity{.Device = status.st_dev,
                         .Number = status.st_ino,
                         .Names = status.st_nlink,
                         .Size = status.st_size,
                         .Written_At = status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
}
