#include "support/registry.h"

#include "support/system_calls_win32.h"

#include <windows.h>

/// The data of a text value, without what follows its size.
static QString Text_Data(HKEY key, const wchar_t* name, DWORD bytes)
{
    std::vector<wchar_t> data(bytes / sizeof(wchar_t) + 1);
    DWORD size = bytes;
    if (::RegQueryValueExW(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(data.data()), &size) != ERROR_SUCCESS)
        return {};
    return From_Wide(data.data(), static_cast<qsizetype>(size / sizeof(wchar_t)));
}

/// Adds what one view of a key holds; false if it can't be opened.
static bool Add_Values(std::vector<Registry_Value>& values, HKEY root, const QString& key, REGSAM view)
{
    HKEY open = nullptr;
    if (::RegOpenKeyExW(root, Wide(key), 0, KEY_READ | view, &open) != ERROR_SUCCESS)
        return false;
    constexpr DWORD longest_name = 16'384;
    std::vector<wchar_t> name(longest_name);
    for (DWORD index = 0;; ++index) {
        DWORD letters = longest_name;
        DWORD type = 0;
        DWORD bytes = 0;
        if (::RegEnumValueW(open, index, name.data(), &letters, nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS)
            break;
        values.push_back({.Name = From_Wide(name.data(), static_cast<qsizetype>(letters)),
                          .Type = type,
                          .Data = type == Reg_Text_Type ? Text_Data(open, name.data(), bytes) : QString()});
    }
    ::RegCloseKey(open);
    return true;
}

/// A 32-bit program's installer writes where only 32-bit programs look, so both views are read, our own first.
std::optional<std::vector<Registry_Value>> List_Registry_Values(std::uint32_t root, const QString& key)
{
    // The predefined roots are numbers that the system extends by their sign.
    const auto predefined = reinterpret_cast<HKEY>( // NOLINT(performance-no-int-to-ptr)
        static_cast<std::intptr_t>(static_cast<std::int32_t>(root)));
    const QString plain = key.endsWith(u'\\') ? key.chopped(1) : key;
    std::vector<Registry_Value> values;
    const bool in_wide = Add_Values(values, predefined, plain, KEY_WOW64_64KEY);
    const bool in_narrow = Add_Values(values, predefined, plain, KEY_WOW64_32KEY);
    return in_wide || in_narrow ? std::optional(values) : std::nullopt;
}
