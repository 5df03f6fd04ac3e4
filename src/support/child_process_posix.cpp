#include "support/child_process.h"

#include "support/disk_names.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
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

/// What a child needs until it is the program that it is to become. It shares our memory till then.
struct Child_Plan
{
    const char* Executable;
    char* const* Arguments;
    char* const* Environment;
    int Output;
    int Messages;
    pid_t Parent;
    volatile int Error; ///< the child's own word when it can't become the program
};

/// Gives the child the standard signals, but for those that we were told to ignore. Those that we look at ourselves,
/// SIGPIPE and SIGCHLD never stay ignored.
static void Give_Standard_Signals()
{
    struct sigaction standard = {};
    standard.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number) {
        struct sigaction present = {};
        const bool ours =
            number == SIGPIPE || number == SIGINT || number == SIGQUIT || number == SIGTERM || number == SIGCHLD;
        if (::sigaction(number, nullptr, &present) == 0 && (ours || present.sa_handler != SIG_IGN))
            ::sigaction(number, &standard, nullptr);
    }
}

/// `descriptor` as one that is none of the three standard ones, so that setting these doesn't close it.
static int Above_Standard(int descriptor)
{
    return ::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
}

/// The child's way to its program. Only calls that are safe between vfork and exec.
[[noreturn]] static void Become(Child_Plan& plan)
{
    Give_Standard_Signals();
    ::setpgid(0, 0);
    // Killed with us, however we end. Where we have ended already, nobody would tell it any more.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != plan.Parent)
        ::_exit(EXIT_FAILURE);

    const int output = Above_Standard(plan.Output);
    const int messages = Above_Standard(plan.Messages);
    const int nothing = Above_Standard(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    if (::dup2(nothing, STDIN_FILENO) >= 0 && ::dup2(output, STDOUT_FILENO) >= 0 &&
        ::dup2(messages, STDERR_FILENO) >= 0) {
        sigset_t none;
        sigemptyset(&none);
        ::sigprocmask(SIG_SETMASK, &none, nullptr);
        ::execve(plan.Executable, plan.Arguments, plan.Environment);
    }
    plan.Error = errno;
    ::_exit(EXIT_FAILURE);
}

/// Starts the program with its output streams at these pipes; 0 or the system's error number. vfork tells a program
/// that can't be executed apart from a child that ends early, and doesn't copy our memory. posix_spawn would do as much
/// but can't tie the child's life to ours.
static int Spawn(pid_t& process, const QByteArray& executable, std::vector<QByteArray>& arguments, int output,
                 int messages)
{
    std::vector<QByteArray> environment = Child_Environment();
    const std::vector<char*> argument_pointers = Pointers_To(arguments);
    const std::vector<char*> environment_pointers = Pointers_To(environment);
    Child_Plan plan{.Executable = executable.constData(),
                    .Arguments = argument_pointers.data(),
                    .Environment = environment_pointers.data(),
                    .Output = output,
                    .Messages = messages,
                    .Parent = ::getpid(),
                    .Error = 0};
    // No handler of ours may run in the child.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    process = ::vfork(); // NOLINT(clang-analyzer-security.insecureAPI.vfork): see above
    if (process == 0)
        Become(plan);
    const int error = process < 0 ? errno : plan.Error;
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    if (process > 0 && error != 0)
        ::waitpid(process, nullptr, 0);
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

struct Child_Process::Platform
{
    int Output = -1;
    int Messages = -1;
};

static void Close_Pipe(int& pipe)
{
    if (pipe >= 0)
        ::close(pipe);
    pipe = -1;
}

/// What one read of an open pipe delivers at once; closes it at its end.
static Child_Process::Read Read_Now(int& pipe, QByteArray& chunk, std::size_t most)
{
    using Read = Child_Process::Read;
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

Child_Process::Child_Process() : platform_(std::make_unique<Platform>()) {}

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
    system_error_ = Make_Pipe(platform_->Output, output);
    if (system_error_ == 0 && outputs == Outputs::Apart)
        system_error_ = Make_Pipe(platform_->Messages, messages);
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

Child_Process::Read Child_Process::Read_Chunk(QByteArray& chunk, std::size_t most)
{
    const Read read = Read_Now(platform_->Output, chunk, most);
    if (read != Read::Nothing_Yet)
        return read;
    pollfd waited{.fd = platform_->Output, .events = POLLIN, .revents = 0};
    // A signal ends the wait early: it may be the one that asks for a halt.
    return ::poll(&waited, 1, Longest_Silence) > 0 ? Read_Now(platform_->Output, chunk, most) : read;
}

Child_Process::Read Child_Process::Read_Chunks(QByteArray& output, QByteArray& messages, std::size_t most)
{
    const auto read_both = [&] {
        const Read one = Read_Now(platform_->Output, output, most);
        return Both(one, Read_Now(platform_->Messages, messages, most));
    };
    const Read read = read_both();
    if (read != Read::Nothing_Yet)
        return read;
    // poll passes over a descriptor below 0, which a closed pipe's is.
    pollfd waited[] = {{.fd = platform_->Output, .events = POLLIN, .revents = 0},
                       {.fd = platform_->Messages, .events = POLLIN, .revents = 0}};
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

void Child_Process::Close_Pipes()
{
    Close_Pipe(platform_->Output);
    Close_Pipe(platform_->Messages);
}
