#pragma once

#include <QString>
#include <cstdint>
#include <optional>

/// Which file stands at a path, links followed, and in what state: to tell two names of one file, and a file that was
/// written to since.
struct File_Identity
{
    std::uint64_t Device = 0;
    std::uint64_t Number = 0; ///< with the device, the same under all names of a file
    std::uint64_t Names = 1;  ///< hard links
    std::int64_t Size = 0;
    std::int64_t Written_At = 0; ///< nanoseconds

    bool Is_Same_File(const File_Identity& other) const { return Device == other.Device && Number == other.Number; }

    bool Is_Unchanged(const File_Identity& other) const
    {
        return Is_Same_File(other) && Size == other.Size && Written_At == other.Written_At;
    }
};

/// Nothing where no file stands, as at the end of a link that leads nowhere.
std::optional<File_Identity> Identity_Of(const QString& path);
