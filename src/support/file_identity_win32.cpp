#include "support/file_identity.h"

#include "support/file_information_win32.h"
#include "support/system_calls_win32.h"

#include <windows.h>

std::optional<File_Identity> Identity_Of_Handle(void* handle)
{
    BY_HANDLE_FILE_INFORMATION facts = {};
    if (::GetFileInformationByHandle(handle, &facts) == 0)
        return {};
    constexpr std::int64_t first_of_1970 = 116'444'736'000'000'000; // in the system's steps of 100 nanoseconds
    const auto wide = [](DWORD high, DWORD low) { return static_cast<std::uint64_t>(high) << 32U | low; };
    const auto written =
        static_cast<std::int64_t>(wide(facts.ftLastWriteTime.dwHighDateTime, facts.ftLastWriteTime.dwLowDateTime));
    return File_Identity{.Device = facts.dwVolumeSerialNumber,
                         .Number = wide(facts.nFileIndexHigh, facts.nFileIndexLow),
                         .Names = facts.nNumberOfLinks,
                         .Size = static_cast<std::int64_t>(wide(facts.nFileSizeHigh, facts.nFileSizeLow)),
                         .Written_At = (written - first_of_1970) * 100};
}

std::optional<File_Identity> Identity_Of(const QString& path)
{
    const System_Handle file = Open_Path(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    return file ? Identity_Of_Handle(file.get()) : std::nullopt;
}

bool Is_Plain_Handle(void* handle)
{
    FILE_ATTRIBUTE_TAG_INFO facts = {};
    if (::GetFileType(handle) != FILE_TYPE_DISK ||
        ::GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &facts, sizeof(facts)) == 0)
        return false;
    // What else the system keeps by such points, as a file that lies in a cloud, is a file to everybody.
    const bool link = (facts.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                      (facts.ReparseTag == IO_REPARSE_TAG_SYMLINK || facts.ReparseTag == IO_REPARSE_TAG_MOUNT_POINT);
    return !link && (facts.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}
