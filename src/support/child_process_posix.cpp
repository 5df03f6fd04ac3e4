#include "support/child_process.h"

#include "support/disk_names.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ; // NOLINT(readability-redundant-declaration): POSIX lets the program declare it

static constexpr int Longest_Silence = 50; ///< milliseconds until a reader gets its turn again
static constexpr int Longest_Death = 5000; ///< milliseconds that a killed child may take to go

static bool Is_Usable_Locale(const QByteArray& name)
{
    const locale_t locale = ::newlocale(LC_CTYPE_MASK, name.constData(), nullptr);
    if (locale == nullptr)
        return false;
    ::freelocale(locale);
    return true;
}

/// The UTF-8 locale that children run in: mkvmerge can't open a non-ASCII path in any other, gives up if the
/// environment names a locale that isn't installed, and we read its English words.
static QByteArray Child_Locale()
{
    std::vector<QByteArray> candidates = {"C.UTF-8", "C.utf8", "en_US.UTF-8", "en_GB.UTF-8", "POSIX.UTF-8"};
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const QByteArray own = qgetenv(variable); own.toLower().replace('-', "").contains("utf8"))
            candidates.push_back(own);
    const auto usable = std::find_if(candidates.begin(), candidates.end(), Is_Usable_Locale);
    return usable == candidates.end() ? candidates.front() : *usable;
}

/// Our environment with LC_ALL set and without LANGUAGE, which would choose another language for the messages.
static std::vector<QByteArray> Child_Environment()
{
    std::vector<QByteArray> variables;
    for (char** variable = environ; *variable != nullptr; ++variable)
        if (std::strncmp(*variable, "LC_ALL=", 7) != 0 && std::strncmp(*variable, "LANGUAGE=", 9) != 0)
            variables.emplace_back(*variable);
    variables.push_back("LC_ALL=" + Child_Locale());
    return variables;
}

/// The texts as the array of pointers, ended by a null, that a new program is given.
static std::vector<char*> Pointers_To(std::vector<QByteArray>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// Starts the program with its output streams at these pipes; 0 or the system's error number. posix_spawn tells a
/// program that can't be executed apart from a child that ends early, and doesn't copy our memory.
static int Spawn(pid_t& process, const QByteArray& executable, std::vector<QByteArray>& arguments, int output,
                 int messages)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, messages, STDERR_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);

    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setpgroup(&attributes, 0);
    sigset_t signal_set;
    sigemptyset(&signal_set);
    posix_spawnattr_setsigmask(&attributes, &signal_set);
    for (const int signal : {SIGPIPE, SIGINT, SIGQUIT, SIGTERM, SIGCHLD})
        sigaddset(&signal_set, signal);
    posix_spawnattr_setsigdefault(&attributes, &signal_set);

    std::vector<QByteArray> environment = Child_Environment();
    const int error = ::posix_spawn(&process, executable.constData(), &actions, &attributes,
                                    Pointers_To(arguments).data(), Pointers_To(environment).data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error;
}

/// A pipe whose reading end never blocks; the child's writes are to wait for us. 0 or the system's error number.
static int Make_Pipe(int& read_end, int& write_end)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return errno;
    read_end = ends[0];
    write_end = ends[1];
    ::fcntl(read_end, F_SETFL, ::fcntl(read_end, F_GETFL) | O_NONBLOCK);
    return 0;
}

Child_Process::Child_Process() = default;

Child_Process::~Child_Process()
{
    Kill();
    Close_Pipes();
}

Child_Process::Started Child_Process::Start(const QString& executable, const QStringList& arguments, Outputs outputs)
{
    Kill();
    Close_Pipes();
    exit_status_.reset();

    int output = -1;
    int messages = -1;
    system_error_ = Make_Pipe(pipe_, output);
    if (system_error_ == 0 && outputs == Outputs::Apart)
        system_error_ = Make_Pipe(messages_pipe_, messages);
    if (system_error_ != 0) {
        Close_Pipe(output);
        Close_Pipes();
        return Started::No_Pipe;
    }

    std::vector<QByteArray> words = {QFile::encodeName(executable)};
    for (const QString& argument : arguments)
        words.push_back(Bytes_Of_Name(argument));
    pid_t process = 0;
    system_error_ = executable.startsWith(u'/')
                        ? Spawn(process, words.front(), words, output, messages < 0 ? output : messages)
                        : ENOENT;
    Close_Pipe(output);
    Close_Pipe(messages);
    if (system_error_ != 0) {
        Close_Pipes();
        return Started::No_Process;
    }
    process_ = process;
    return Started::Yes;
}

Child_Process::Read Child_Process::Read_Now(int& pipe, QByteArray& chunk, std::size_t most)
{
    chunk.clear();
    if (pipe < 0)
        return Read::Ended;
    chunk.resize(static_cast<qsizetype>(most));
    const ssize_t count = ::read(pipe, chunk.data(), most);
    const int error = errno;
    chunk.resize(std::max<ssize_t>(count, 0));
    if (count > 0)
        return Read::Data;
    if (count < 0 && (error == EAGAIN || error == EINTR))
        return Read::Nothing_Yet;
    Close_Pipe(pipe);
    return Read::Ended;
}

Child_Process::Read Child_Process::Read_Chunk(QByteArray& chunk, std::size_t most)
{
    const Read read = Read_Now(pipe_, chunk, most);
    if (read != Read::Nothing_Yet)
        return read;
    pollfd waited{.fd = pipe_, .events = POLLIN, .revents = 0};
    // A signal ends the wait early: it may be the one that asks for a halt.
    return ::poll(&waited, 1, Longest_Silence) > 0 ? Read_Now(pipe_, chunk, most) : read;
}

/// What two pipes together have delivered.
static Child_Process::Read Both(Child_Process::Read one, Child_Process::Read other)
{
    using Read = Child_Process::Read;
    if (one == Read::Data || other == Read::Data)
        return Read::Data;
    return one == Read::Ended && other == Read::Ended ? Read::Ended : Read::Nothing_Yet;
}

Child_Process::Read Child_Process::Read_Chunks(QByteArray& output, QByteArray& messages, std::size_t most)
{
    const auto read_both = [&] {
        const Read one = Read_Now(pipe_, output, most);
        return Both(one, Read_Now(messages_pipe_, messages, most));
    };
    const Read read = read_both();
    if (read != Read::Nothing_Yet)
        return read;
    // poll passes over a descriptor below 0, which a closed pipe's is.
    pollfd waited[] = {{.fd = pipe_, .events = POLLIN, .revents = 0},
                       {.fd = messages_pipe_, .events = POLLIN, .revents = 0}};
    return ::poll(waited, 2, Longest_Silence) > 0 ? read_both() : read;
}

void Child_Process::Kill()
{
    if (process_ == 0)
        return;
    // Not reaped yet, so the number is still the child's own, and so is the group that it leads.
    ::kill(static_cast<pid_t>(-process_), SIGKILL);
    for (int waited = 0; waited < Longest_Death && !Reap(Longest_Silence); waited += Longest_Silence) {}
    process_ = 0;
}

/// Returns when the child has ended or the time is up; where the system can't tell, after a moment.
static void Await_End(pid_t process, int milliseconds)
{
    const int descriptor = static_cast<int>(::syscall(SYS_pidfd_open, process, 0));
    if (descriptor < 0) {
        ::poll(nullptr, 0, std::min(milliseconds, 2));
        return;
    }
    pollfd waited{.fd = descriptor, .events = POLLIN, .revents = 0};
    ::poll(&waited, 1, milliseconds);
    ::close(descriptor);
}

bool Child_Process::Reap(int milliseconds)
{
    if (process_ == 0)
        return true;
    int status = 0;
    const pid_t process = static_cast<pid_t>(process_);
    pid_t reaped = ::waitpid(process, &status, WNOHANG);
    if (reaped == 0) {
        Await_End(process, milliseconds);
        reaped = ::waitpid(process, &status, WNOHANG);
    }
    if (reaped == 0)
        return false;
    // Less than 0: somebody who ignores SIGCHLD started us, and the system has reaped the child without a word.
    if (reaped > 0)
        exit_status_ = WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    process_ = 0;
    return true;
}

void Child_Process::Close_Pipe(int& pipe)
{
    if (pipe >= 0)
        ::close(pipe);
    pipe = -1;
}

void Child_Process::Close_Pipes()
{
    Close_Pipe(pipe_);
    Close_Pipe(messages_pipe_);
}
