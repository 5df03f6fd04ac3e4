#include "tools/kill_mkvmerge.h"

#include "support/paths.h"

#include <QFile>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

/// The process that a folder of /proc stands for; 0 for the folders of other things.
static pid_t Process_Of(const std::string& folder_name)
{
    pid_t process = 0;
    const char* const end = folder_name.data() + folder_name.size();
    const auto result = std::from_chars(folder_name.data(), end, process);
    return result.ec == std::errc() && result.ptr == end ? process : 0;
}

/// The file name of the executable that a process runs, also of one that was replaced on disk since.
static std::string Executable_Name(const fs::path& process_folder)
{
    std::error_code error;
    std::string name = fs::read_symlink(process_folder / "exe", error).filename().string();
    const std::string replaced = " (deleted)";
    if (name.ends_with(replaced))
        name.resize(name.size() - replaced.size());
    return name;
}

static bool Is_Ours(const fs::path& process_folder)
{
    struct stat status = {};
    return ::stat(process_folder.c_str(), &status) == 0 && status.st_uid == ::geteuid();
}

void Kill_By_Executable_Name(const QString& executable)
{
    const QString file_name = File_Name_Of(executable);
    const std::string wanted = file_name.isEmpty() ? "mkvmerge" : QFile::encodeName(file_name).toStdString();
    std::error_code error;
    for (fs::directory_iterator entry("/proc", error), end; !error && entry != end; entry.increment(error)) {
        const pid_t process = Process_Of(entry->path().filename().string());
        if (process > 0 && process != ::getpid() && Is_Ours(entry->path()) && Executable_Name(entry->path()) == wanted)
            ::kill(process, SIGKILL);
    }
}
