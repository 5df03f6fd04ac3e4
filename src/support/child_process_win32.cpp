#include "support/child_process.h"

#include "support/long_path.h"
#include "support/paths.h"
#include "support/system_calls_win32.h"
#include "support/windows_quoting.h"

#include <QUuid>
#include <algorithm>
#include <array>
#include <vector>
#include <windows.h>

using namespace Qt::StringLiterals;

static constexpr DWORD Longest_Silence = 50;    ///< milliseconds until a reader gets its turn again
static constexpr DWORD Longest_Death = 5000;    ///< milliseconds that a killed child may take to go
static constexpr DWORD Pipe_Bytes = 64 << 10;   ///< what a pipe holds, and the most of one read
static constexpr UINT Ended_By_Us = 0xC0000120; ///< "cancelled"

/// Our end of a pipe. One read is always under way, so that data is there the moment it arrives; the system writes into
/// `Buffer` until that read is over.
struct Pipe_End
{
    System_Handle Pipe;
    System_Handle Event;
    OVERLAPPED Under_Way = {};
    bool Is_Under_Way = false;
    std::vector<char> Buffer = std::vector<char>(Pipe_Bytes);
    QByteArray Left; ///< what was read and not handed out yet

    bool Is_Open() const { return static_cast<bool>(Pipe); }

    void Close();
    /// What has arrived, without waiting for more.
    Child_Process::Read Take(QByteArray& chunk, std::size_t most);

  private:
    /// What the read has come to: its bytes are in Left.
    Child_Process::Read Finish(DWORD count, DWORD error);
    Child_Process::Read Hand_Out(QByteArray& chunk, std::size_t most);
};

void Pipe_End::Close()
{
    if (Is_Under_Way) {
        DWORD count = 0;
        ::CancelIoEx(Pipe.get(), &Under_Way);
        ::GetOverlappedResult(Pipe.get(), &Under_Way, &count, TRUE);
        Is_Under_Way = false;
    }
    Pipe.reset();
    Left.clear();
}

Child_Process::Read Pipe_End::Finish(DWORD count, DWORD error)
{
    using Read = Child_Process::Read;
    if (error == ERROR_IO_PENDING || error == ERROR_IO_INCOMPLETE) {
        Is_Under_Way = true;
        return Read::Nothing_Yet;
    }
    Is_Under_Way = false;
    if (error != ERROR_SUCCESS && error != ERROR_MORE_DATA) {
        Close();
        return Read::Ended;
    }
    Left.append(Buffer.data(), static_cast<qsizetype>(count));
    return count > 0 ? Read::Data : Read::Nothing_Yet;
}

Child_Process::Read Pipe_End::Hand_Out(QByteArray& chunk, std::size_t most)
{
    if (static_cast<std::size_t>(Left.size()) <= most) {
        chunk.swap(Left);
        return Child_Process::Read::Data;
    }
    chunk = Left.first(static_cast<qsizetype>(most));
    Left.remove(0, static_cast<qsizetype>(most));
    return Child_Process::Read::Data;
}

Child_Process::Read Pipe_End::Take(QByteArray& chunk, std::size_t most)
{
    using Read = Child_Process::Read;
    chunk.clear();
    if (!Is_Open())
        return Read::Ended;
    if (!Left.isEmpty())
        return Hand_Out(chunk, most);
    DWORD count = 0;
    bool done = false;
    if (Is_Under_Way) {
        done = ::GetOverlappedResult(Pipe.get(), &Under_Way, &count, FALSE) != 0;
    } else {
        Under_Way = {};
        Under_Way.hEvent = Event.get();
        const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(most, Pipe_Bytes));
        done = ::ReadFile(Pipe.get(), Buffer.data(), wanted, &count, &Under_Way) != 0;
    }
    const Read read = Finish(count, done ? ERROR_SUCCESS : ::GetLastError());
    return read == Read::Data ? Hand_Out(chunk, most) : read;
}

struct Child_Process::Platform
{
    Pipe_End Output;
    Pipe_End Messages;
    System_Handle Process;
    System_Handle Job; ///< the child and all that it starts; closed, it ends them, also when we end without a word
};

/// A pipe of a name that nobody else has: only such a one can be waited for and read at once. `write_end` is for the
/// child. 0 or the system's error number.
static DWORD Make_Pipe(Pipe_End& pipe, System_Handle& write_end)
{
    const QString name = u"\\\\.\\pipe\\vantorra-"_s + QUuid::createUuid().toString(QUuid::Id128);
    pipe.Event = System_Handle(::CreateEventW(nullptr, TRUE, FALSE, nullptr));
    pipe.Pipe = System_Handle(::CreateNamedPipeW(
        Wide(name), PIPE_ACCESS_INBOUND | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
        PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS, 1, 0, Pipe_Bytes, 0, nullptr));
    if (!pipe.Event || !pipe.Pipe)
        return ::GetLastError();
    SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
    write_end = System_Handle(
        ::CreateFileW(Wide(name), GENERIC_WRITE, 0, &inherited, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return write_end ? ERROR_SUCCESS : ::GetLastError();
}

/// A job whose processes end when its handle is closed. Without one, should the system refuse, the child alone is
/// ended.
static System_Handle Make_Job()
{
    System_Handle job(::CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    if (job)
        ::SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof(limits));
    return job;
}

/// The list of the handles that a child inherits: nothing else of ours that is inheritable gets into it, whichever
/// thread has made it.
class Inherited_Handles
{
  public:
    explicit Inherited_Handles(std::vector<HANDLE> handles) : handles_(std::move(handles))
    {
        // The standard streams may be one handle, which may stand in the list only once.
        std::sort(handles_.begin(), handles_.end());
        handles_.erase(std::unique(handles_.begin(), handles_.end()), handles_.end());
        SIZE_T size = 0;
        ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        memory_.resize(size);
        is_made_ = ::InitializeProcThreadAttributeList(Get(), 1, 0, &size) != 0;
        is_filled_ =
            is_made_ && ::UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                                                    handles_.size() * sizeof(HANDLE), nullptr, nullptr) != 0;
    }

    Inherited_Handles(const Inherited_Handles&) = delete;
    Inherited_Handles& operator=(const Inherited_Handles&) = delete;

    ~Inherited_Handles()
    {
        if (is_made_)
            ::DeleteProcThreadAttributeList(Get());
    }

    bool Is_Filled() const { return is_filled_; }

    LPPROC_THREAD_ATTRIBUTE_LIST Get() { return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data()); }

  private:
    std::vector<HANDLE> handles_;
    std::vector<std::byte> memory_;
    bool is_made_ = false;
    bool is_filled_ = false;
};

/// What the system would hand to its command interpreter, which reads arguments by rules of its own.
static bool Is_Script(const QString& executable)
{
    return executable.endsWith(u".bat"_s, Qt::CaseInsensitive) || executable.endsWith(u".cmd"_s, Qt::CaseInsensitive);
}

/// Starts the program with its output streams at these pipes; 0 or the system's error number. It is in the job before
/// its first step.
static DWORD Spawn(PROCESS_INFORMATION& process, const QString& executable, QString line, HANDLE output,
                   HANDLE messages, HANDLE job)
{
    SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
    const System_Handle nothing(::CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!nothing)
        return ::GetLastError();
    Inherited_Handles handles({nothing.get(), output, messages});
    if (!handles.Is_Filled())
        return ::GetLastError();
    STARTUPINFOEXW start = {};
    start.StartupInfo.cb = sizeof(start);
    start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
    start.StartupInfo.hStdInput = nothing.get();
    start.StartupInfo.hStdOutput = output;
    start.StartupInfo.hStdError = messages;
    start.lpAttributeList = handles.Get();
    constexpr DWORD how = CREATE_NO_WINDOW | CREATE_UNICODE_ENVIRONMENT | CREATE_NEW_PROCESS_GROUP | CREATE_SUSPENDED |
                          EXTENDED_STARTUPINFO_PRESENT;
    // The system writes into the command line.
    if (::CreateProcessW(Wide(executable), reinterpret_cast<wchar_t*>(line.data()), nullptr, nullptr, TRUE, how,
                         nullptr, nullptr, &start.StartupInfo, &process) == 0)
        return ::GetLastError();
    if (job != nullptr)
        ::AssignProcessToJobObject(job, process.hProcess);
    ::ResumeThread(process.hThread);
    ::CloseHandle(process.hThread);
    return ERROR_SUCCESS;
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

    System_Handle output;
    System_Handle messages;
    DWORD error = Make_Pipe(platform_->Output, output);
    if (error == ERROR_SUCCESS && outputs == Outputs::Apart)
        error = Make_Pipe(platform_->Messages, messages);
    system_error_ = static_cast<int>(error);
    if (error != ERROR_SUCCESS) {
        Close_Pipes();
        return Started::No_Pipe;
    }

    const QString program = Path_For_Tool(executable);
    const QString line = Windows_Command_Line(program, arguments);
    PROCESS_INFORMATION process = {};
    if (!Is_Absolute_Path(executable))
        error = ERROR_FILE_NOT_FOUND;
    else if (Is_Script(executable))
        error = ERROR_BAD_EXE_FORMAT;
    else if (line.size() > Longest_Windows_Command_Line)
        error = ERROR_FILENAME_EXCED_RANGE;
    else {
        platform_->Job = Make_Job();
        error =
            Spawn(process, program, line, output.get(), messages ? messages.get() : output.get(), platform_->Job.get());
    }
    system_error_ = static_cast<int>(error);
    if (error != ERROR_SUCCESS) {
        Close_Pipes();
        return Started::No_Process;
    }
    platform_->Process = System_Handle(process.hProcess);
    process_ = static_cast<long>(process.dwProcessId);
    return Started::Yes;
}

Child_Process::Read Child_Process::Read_Chunk(QByteArray& chunk, std::size_t most)
{
    Pipe_End& pipe = platform_->Output;
    const Read read = pipe.Take(chunk, most);
    if (read != Read::Nothing_Yet || !pipe.Is_Under_Way)
        return read;
    return ::WaitForSingleObject(pipe.Event.get(), Longest_Silence) == WAIT_OBJECT_0 ? pipe.Take(chunk, most) : read;
}

Child_Process::Read Child_Process::Read_Chunks(QByteArray& output, QByteArray& messages, std::size_t most)
{
    const auto read_both = [&] {
        const Read one = platform_->Output.Take(output, most);
        return Both(one, platform_->Messages.Take(messages, most));
    };
    const Read read = read_both();
    if (read != Read::Nothing_Yet)
        return read;
    std::vector<HANDLE> waited;
    for (const Pipe_End* pipe : {&platform_->Output, &platform_->Messages})
        if (pipe->Is_Under_Way)
            waited.push_back(pipe->Event.get());
    if (waited.empty())
        return read;
    const DWORD woken =
        ::WaitForMultipleObjects(static_cast<DWORD>(waited.size()), waited.data(), FALSE, Longest_Silence);
    return woken < WAIT_OBJECT_0 + waited.size() ? read_both() : read;
}

void Child_Process::Kill()
{
    if (process_ == 0)
        return;
    if (platform_->Job)
        ::TerminateJobObject(platform_->Job.get(), Ended_By_Us);
    ::TerminateProcess(platform_->Process.get(), Ended_By_Us);
    Reap(static_cast<int>(Longest_Death));
    process_ = 0;
}

bool Child_Process::Reap(int milliseconds)
{
    if (process_ == 0)
        return true;
    if (::WaitForSingleObject(platform_->Process.get(), static_cast<DWORD>(milliseconds)) != WAIT_OBJECT_0)
        return false;
    // What a crash leaves has its highest bit set, and so is less than 0.
    DWORD status = 0;
    if (::GetExitCodeProcess(platform_->Process.get(), &status) != 0)
        exit_status_ = static_cast<int>(status);
    platform_->Process.reset();
    process_ = 0;
    return true;
}

void Child_Process::Close_Pipes()
{
    platform_->Output.Close();
    platform_->Messages.Close();
}
