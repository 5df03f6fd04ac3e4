#include "windows/unix_paths.h"

#include "windows/kernel_calls.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <windows.h>

std::string Utf8(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

/// Wine's own answer leads through the prefix's folder of drives, where each is a link.
static std::string Without_Drive_Link(const std::string& path)
{
    const std::size_t drives = path.find("/dosdevices/");
    if (drives == std::string::npos || path.size() < drives + 14 || path[drives + 13] != ':')
        return path;
    const std::string link = path.substr(0, drives + 14), rest = path.substr(drives + 14);
    std::array<char, 4096> target{};
    const long long size = System(Call::Read_Link, Address(link.c_str()), Address(target.data()), target.size() - 1);
    const std::string root = size > 0 ? target.data() : "";
    if (root == "/")
        return rest.empty() ? root : rest;
    if (root.starts_with('/'))
        return root + rest;
    return root.starts_with("../") ? path.substr(0, drives) + root.substr(2) + rest : path;
}

std::string Unix_Path(const std::wstring& path)
{
    using Name_Call = char*(CDECL*)(const wchar_t*);
    static const auto name_of = reinterpret_cast<Name_Call>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
    char* name = name_of ? name_of(path.c_str()) : nullptr;
    if (name) {
        const std::string result = Without_Drive_Link(name);
        HeapFree(GetProcessHeap(), 0, name);
        return result;
    }
    // Its folder isn't there: the tool is to say so.
    const std::size_t end = path.find_last_of(L"\\/");
    if (end == std::wstring::npos || end < 3 || path[end - 1] == L'?')
        return {};
    std::string result = Unix_Path(path.substr(0, end));
    return result.empty() ? result : (result == "/" ? "" : result) + '/' + Utf8(path.substr(end + 1));
}

static bool Has_Drive(const std::wstring& text)
{
    const std::wstring plain = text.starts_with(LR"(\\?\)") ? text.substr(4) : text;
    const wchar_t letter = plain.empty() ? L'\0' : static_cast<wchar_t>(plain[0] | 0x20);
    return plain.size() > 2 && letter >= L'a' && letter <= L'z' && plain[1] == L':' &&
           (plain[2] == L'\\' || plain[2] == L'/');
}

static bool Is_Null_Device(const std::wstring& path)
{
    return path == LR"(\\.\NUL)" || path == L"NUL";
}

/// As a text of JSON has it, without the quotes.
static std::string In_Json(const std::string& text)
{
    std::string result;
    for (const char letter : text) {
        if (letter == '\\' || letter == '"')
            result += '\\';
        result += letter;
    }
    return result;
}

static std::string Folder_Of(const std::string& path, char separator)
{
    return path.substr(0, path.rfind(separator) + 1);
}

/// The path and its folder: a tool also speaks of what it made beside it.
static void Add_Pair(std::vector<Path_Pair>& pairs, const std::string& unix_path, const std::string& windows_path)
{
    const std::string folder = Folder_Of(unix_path, '/');
    pairs.push_back({unix_path, windows_path});
    if (folder.size() > 1 && folder.size() < unix_path.size())
        pairs.push_back({folder, Folder_Of(windows_path, '\\')});
}

/// What may stand ahead of a path in one argument, its colon included.
static std::wstring Prefix_Of(const std::wstring& argument)
{
    const std::wstring word = argument.substr(0, argument.find(L':') + 1);
    const bool is_number = word.size() > 1 && word.find_first_not_of(L"0123456789:") == std::wstring::npos;
    return is_number || word == L"file:" ? word : L"";
}

std::vector<std::string> Unix_Arguments(const std::vector<std::wstring>& arguments, std::vector<Path_Pair>& pairs)
{
    std::vector<std::string> result;
    std::wstring before;
    bool json = false;
    for (const std::wstring& argument : arguments) {
        const bool title = before == L"--title" || before == L"--track-name";
        const std::wstring prefix = Prefix_Of(argument);
        const std::wstring path = argument.substr(prefix.size());
        const std::string translated = title                  ? ""
                                       : Is_Null_Device(path) ? "/dev/null"
                                       : Has_Drive(path)      ? Unix_Path(path)
                                                              : "";
        if (!translated.empty())
            Add_Pair(pairs, translated, Utf8(path));
        result.push_back(translated.empty() ? Utf8(argument) : Utf8(prefix) + translated);
        json = json || argument == L"-J" || argument == L"json";
        before = argument;
    }
    for (Path_Pair& pair : pairs)
        if (json)
            pair = {In_Json(pair.Unix), In_Json(pair.Windows)};
    std::ranges::stable_sort(pairs, std::ranges::greater(), [](const Path_Pair& pair) { return pair.Unix.size(); });
    return result;
}

/// True if `path` goes on behind what the text ends with at `at`.
static bool Is_Cut_Off(const std::string& text, std::size_t at, const std::string& path)
{
    const std::size_t rest = text.size() - at;
    return rest < path.size() && path.compare(0, rest, text, at, rest) == 0;
}

std::string Put_Back(std::string& text, const std::vector<Path_Pair>& pairs, bool last)
{
    std::string result;
    std::size_t at = 0;
    for (std::size_t next = text.find('/'); next != std::string::npos; next = text.find('/', at)) {
        result.append(text, at, next - at);
        at = next;
        const auto is_cut_off = [&](const Path_Pair& pair) { return Is_Cut_Off(text, at, pair.Unix); };
        if (!last && std::ranges::any_of(pairs, is_cut_off))
            break;
        const auto stands_here = [&](const Path_Pair& pair) {
            return text.compare(at, pair.Unix.size(), pair.Unix) == 0;
        };
        const auto pair = std::ranges::find_if(pairs, stands_here);
        result += pair == pairs.end() ? "/" : pair->Windows;
        at += pair == pairs.end() ? 1 : pair->Unix.size();
    }
    const bool waits = !last && at < text.size() && text[at] == '/';
    if (!waits)
        result.append(text, at);
    text = waits ? text.substr(at) : "";
    return result;
}
