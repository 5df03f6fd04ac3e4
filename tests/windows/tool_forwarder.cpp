// Stands as a tool's .exe where the tests run under Wine: NAME.exe runs NAME.exe.sh beside it in the shell of the
// system below, with the paths among its arguments in that system's form, and hands back output and exit status. The
// script lives no longer than NAME.exe does.

#include "windows/kernel_calls.h"
#include "windows/unix_paths.h"

#include <array>
#include <windows.h>

// Arguments are data: the run-time library isn't to look for file names that match them.
extern "C" int _CRT_glob;
int _CRT_glob = 0;

namespace {

constexpr int Signal_Kill = 9, Signal_Pipe = 13, Close_On_Execute = 02000000, Die_With_Parent = 1;
constexpr int Milliseconds_For_The_Rest_Of_A_Path = 20;

struct Pipe_Ends
{
    int Reader = -1, Writer = -1;
};

/// What Poll asks about one descriptor.
struct Waiting_For
{
    int Descriptor = -1;
    short Events = 1, Answer = 0;
};

/// An output of the script on its way to ours.
struct Stream
{
    int Reader = -1; ///< -1: closed
    HANDLE Target = nullptr;
    std::string Kept = {}; ///< what may be the beginning of a path
};

Pipe_Ends Make_Pipe()
{
    Pipe_Ends pipe;
    System(Call::Pipe, Address(&pipe), Close_On_Execute);
    return pipe;
}

/// The environment that the outermost Wine was started with, with PATH and home as the system below knows them, and
/// behind it what the program sets for a child: the shell takes the last of a name.
std::vector<std::string> Unix_Environment()
{
    std::vector<std::string> environment;
    std::string below;
    std::array<char, 4096> buffer{};
    const long long file = System(Call::Open, Address("/proc/self/environ"));
    for (long long size = 0; (size = System(Call::Read, file, Address(buffer.data()), buffer.size())) > 0;)
        below.append(buffer.data(), static_cast<std::size_t>(size));
    System(Call::Close, file);
    for (std::size_t at = 0; at < below.size(); at = below.find('\0', at) + 1)
        environment.emplace_back(below.c_str() + at);
    wchar_t* const block = GetEnvironmentStringsW();
    for (const wchar_t* entry = block; *entry; entry += std::wstring(entry).size() + 1) {
        const std::string text = Utf8(entry), name = text.substr(0, text.find('='));
        const bool is_windows = name.empty() || name == "PATH" || name == "TEMP" || name == "TMP" || name == "HOME" ||
                                name.starts_with("WINE") || name.find('(') != std::string::npos;
        if (!is_windows)
            environment.push_back(text);
    }
    FreeEnvironmentStringsW(block);
    return environment;
}

std::vector<const char*> Pointers(const std::vector<std::string>& texts)
{
    std::vector<const char*> pointers;
    for (const std::string& text : texts)
        pointers.push_back(text.c_str());
    pointers.push_back(nullptr);
    return pointers;
}

/// In the copy of this process: becomes the shell, in a group of its own, which dies with this process.
[[noreturn]] void Become_Shell(const char* const* arguments, const char* const* environment, long long output,
                               long long errors)
{
    // Wine passes over broken pipes; the handler's structure begins with the handler, and 0 is the system's own.
    const std::array<long long, 4> system_default{};
    System(Call::Signal_Action, Signal_Pipe, Address(system_default.data()), 0, 8);
    System(Call::Process_Control, Die_With_Parent, Signal_Kill);
    System(Call::Set_Group);
    System(Call::Duplicate, System(Call::Open, Address("/dev/null")), 0);
    System(Call::Duplicate, output, 1);
    System(Call::Duplicate, errors, 2);
    System(Call::Execute, Address("/bin/sh"), Address(arguments), Address(environment));
    System(Call::End, 127);
    __builtin_unreachable();
}

/// In another copy: ends whatever the shell has started once this process is gone, unless it says that all is well.
[[noreturn]] void Watch(long long life_line, long long shell)
{
    System(Call::Duplicate, life_line, 0);
    // Wine takes this process for alive while a copy holds its descriptors.
    System(Call::Close_Range, 1, ~0U);
    char all_is_well = 0;
    if (System(Call::Read, 0, Address(&all_is_well), 1) != 1)
        System(Call::Kill, -shell, Signal_Kill);
    System(Call::End);
    __builtin_unreachable();
}

void Write_All(Stream& stream, const std::string& text)
{
    for (std::size_t at = 0; at < text.size();) {
        DWORD written = 0;
        if (!WriteFile(stream.Target, text.data() + at, static_cast<DWORD>(text.size() - at), &written, nullptr)) {
            // Nobody reads any more: the script is to notice, too.
            System(Call::Close, stream.Reader);
            stream.Reader = -1;
            return;
        }
        at += written;
    }
}

/// Takes what the stream has; closes it at its end.
void Pass_On(Stream& stream, const std::vector<Path_Pair>& pairs)
{
    std::array<char, 65536> buffer;
    const long long size = System(Call::Read, stream.Reader, Address(buffer.data()), buffer.size());
    if (size > 0)
        stream.Kept.append(buffer.data(), static_cast<std::size_t>(size));
    Write_All(stream, Put_Back(stream.Kept, pairs, size <= 0));
    if (size <= 0 && stream.Reader != -1) {
        System(Call::Close, stream.Reader);
        stream.Reader = -1;
    }
}

/// Passes on what comes until the script has ended and nothing is left to read; what it leaves behind may hold the
/// streams for longer.
void Pass_On_All(std::array<Stream, 2>& streams, const std::vector<Path_Pair>& pairs, long long shell)
{
    const int shell_ends = static_cast<int>(System(Call::Process_Descriptor, shell));
    while (true) {
        std::array<Waiting_For, 3> waiting{{{streams[0].Reader}, {streams[1].Reader}, {shell_ends}}};
        const bool keeps = !streams[0].Kept.empty() || !streams[1].Kept.empty();
        System(Call::Poll, Address(waiting.data()), waiting.size(), keeps ? Milliseconds_For_The_Rest_Of_A_Path : -1);
        bool has_come = false;
        for (std::size_t index = 0; index < streams.size(); ++index) {
            Stream& stream = streams[index];
            if (waiting[index].Answer != 0)
                Pass_On(stream, pairs);
            else if (!stream.Kept.empty())
                Write_All(stream, Put_Back(stream.Kept, pairs, true));
            has_come = has_come || waiting[index].Answer != 0;
        }
        if (!has_come && waiting[2].Answer != 0)
            return;
    }
}

std::wstring Own_Path()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

/// The script's exit status; that of a crash where a signal has ended it.
int Status_Of(long long shell)
{
    constexpr int crash = static_cast<int>(0xC0000005);
    int status = 0;
    System(Call::Wait, shell, Address(&status));
    const int signal = status & 0x7f;
    return signal != 0 ? crash : (status >> 8) & 0xff;
}

int Run_Script(const std::vector<std::string>& arguments, const std::vector<Path_Pair>& pairs)
{
    const std::vector<std::string> environment = Unix_Environment();
    const std::vector<const char*> argument_list = Pointers(arguments), environment_list = Pointers(environment);
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE), errors = GetStdHandle(STD_ERROR_HANDLE);
    // One pipe stays one, so that what comes first is read first.
    const bool together = output == errors;
    const Pipe_Ends out = Make_Pipe(), error = together ? out : Make_Pipe(), life_line = Make_Pipe();

    const long long shell = System(Call::Fork);
    if (shell == 0)
        Become_Shell(argument_list.data(), environment_list.data(), out.Writer, error.Writer);
    const long long watcher = System(Call::Fork);
    if (watcher == 0)
        Watch(life_line.Reader, shell);
    for (const int end : {out.Writer, error.Writer, life_line.Reader})
        System(Call::Close, end);

    std::array<Stream, 2> streams{{{out.Reader, output}, {together ? -1 : error.Reader, errors}}};
    Pass_On_All(streams, pairs, shell);
    const int status = Status_Of(shell);
    System(Call::Write, life_line.Writer, Address("."), 1);
    return status;
}

} // namespace

int wmain(int count, wchar_t** texts)
{
    const std::vector<std::wstring> given(texts + 1, texts + count);
    std::vector<Path_Pair> pairs;
    std::vector<std::string> arguments = Unix_Arguments(given, pairs);
    const std::string script = Unix_Path(Own_Path() + L".sh");
    arguments.insert(arguments.begin(), {"sh", script});
    return Run_Script(arguments, pairs);
}
