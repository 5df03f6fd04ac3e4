// Loaded into vantorra-batch ahead of the system's library, it makes single calls fail or kills the program at them.
// FAULT=renameat2:2:kill,fsync:0:5: at the second renameat2 the program is killed; every fsync fails with error 5.
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

/// What FAULT says of this call: -1 nothing, else the error it fails with.
static int Fault_Of(const char* call, int& count)
{
    const char* rest = std::getenv("FAULT");
    if (rest == nullptr || std::strcmp(program_invocation_short_name, "vantorra-batch") != 0)
        return -1;
    ++count;
    for (; rest != nullptr && *rest != 0; rest = std::strchr(rest, ',') ? std::strchr(rest, ',') + 1 : nullptr) {
        char name[32] = {};
        char what[32] = {};
        int at = 0;
        if (std::sscanf(rest, "%31[^:]:%d:%31[^,]", name, &at, what) != 3 || std::strcmp(name, call) != 0)
            continue;
        if (at != 0 && at != count)
            continue;
        if (std::strcmp(what, "kill") == 0)
            ::kill(::getpid(), SIGKILL);
        return std::atoi(what);
    }
    return -1;
}

static bool Leads_To(int handle, const char* name)
{
    char path[4096] = {};
    char link_name[64];
    std::snprintf(link_name, sizeof link_name, "/proc/self/fd/%d", handle);
    return ::readlink(link_name, path, sizeof path - 1) > 0 && std::strstr(path, name) != nullptr;
}

template <typename Function>
static Function Next(const char* name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

#define FAULTY(name)                                                                                                   \
    static int count = 0;                                                                                              \
    if (const int error = Fault_Of(#name, count); error >= 0) {                                                        \
        errno = error;                                                                                                 \
        return -1;                                                                                                     \
    }

extern "C" {
int renameat2(int from, const char* source, int to, const char* name, unsigned flags)
{
    FAULTY(renameat2)
    return Next<int (*)(int, const char*, int, const char*, unsigned)>("renameat2")(from, source, to, name, flags);
}

int link(const char* source, const char* name)
{
    FAULTY(link)
    return Next<int (*)(const char*, const char*)>("link")(source, name);
}

int fsync(int handle)
{
    FAULTY(fsync)
    return Next<int (*)(int)>("fsync")(handle);
}

int mkdir(const char* path, mode_t mode)
{
    if (std::strstr(path, "/.vantorra-") != nullptr) {
        FAULTY(mkdir)
    }
    return Next<int (*)(const char*, mode_t)>("mkdir")(path, mode);
}

int rmdir(const char* path)
{
    FAULTY(rmdir)
    return Next<int (*)(const char*)>("rmdir")(path);
}

/// Only what goes to the journal.
ssize_t write(int handle, const void* text, size_t size)
{
    if (size > 10 && std::memcmp(text, "{\"", 2) == 0 && std::getenv("FAULT") != nullptr &&
        Leads_To(handle, "Vantorra_Journal")) {
        FAULTY(write)
    }
    return Next<ssize_t (*)(int, const void*, size_t)>("write")(handle, text, size);
}

/// Only where the listing of the videos' folder would end.
dirent* readdir(DIR* folder)
{
    dirent* entry = Next<dirent* (*)(DIR*)>("readdir")(folder);
    static int count = 0;
    if (const int error = !entry && Leads_To(::dirfd(folder), "/videos") ? Fault_Of("readdir", count) : -1; error >= 0)
        errno = error;
    return entry;
}

/// Only the first video, by this program; its other files are opened as they are.
int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    if (std::strstr(path, "/videos/a.mkv") != nullptr) {
        FAULTY(open)
    }
    return Next<int (*)(const char*, int, ...)>("open")(path, flags, mode);
}

/// In mkvmerge, TORN names a file of which no byte behind its middle can be read.
size_t fread(void* buffer, size_t size, size_t count, FILE* file)
{
    const auto read = Next<size_t (*)(void*, size_t, size_t, FILE*)>("fread");
    const char* torn = std::getenv("TORN");
    if (torn == nullptr || *torn == 0 || std::strcmp(program_invocation_short_name, "mkvmerge") != 0)
        return read(buffer, size, count, file);
    struct stat status = {};
    const bool is_torn = Leads_To(::fileno(file), torn) && ::fstat(::fileno(file), &status) == 0;
    const long left = is_torn ? status.st_size / 2 - std::ftell(file) : 0;
    if (!is_torn || static_cast<long>(size * count) <= left)
        return read(buffer, size, count, file);
    errno = EIO;
    return left <= 0 ? 0 : read(buffer, 1, static_cast<size_t>(left), file) / size;
}

int statvfs(const char* path, struct statvfs* status)
{
    const int result = Next<int (*)(const char*, struct statvfs*)>("statvfs")(path, status);
    if (const char* room = std::getenv("ROOM"); room != nullptr && result == 0) {
        status->f_frsize = 1;
        status->f_bavail = std::strtoul(room, nullptr, 10);
    }
    return result;
}
}
