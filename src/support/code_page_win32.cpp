#include "support/code_page.h"

#include <string>
#include <windows.h>

/// The system's, whatever the one of this process is.
static UINT System_Code_Page()
{
    UINT page = 0;
    const int length = GetLocaleInfoEx(LOCALE_NAME_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                                       reinterpret_cast<wchar_t*>(&page), sizeof page / sizeof(wchar_t));
    // A language that is only written in Unicode has none.
    constexpr UINT western = 1252;
    return length > 0 && page != CP_ACP && page != CP_UTF8 ? page : western;
}

QString Text_In_Code_Page(QByteArrayView bytes)
{
    const UINT page = System_Code_Page();
    const int size = static_cast<int>(bytes.size());
    const int letters = MultiByteToWideChar(page, 0, bytes.data(), size, nullptr, 0);
    if (letters <= 0)
        return QString::fromLatin1(bytes);
    std::wstring text(static_cast<std::size_t>(letters), L'\0');
    MultiByteToWideChar(page, 0, bytes.data(), size, text.data(), letters);
    return QString::fromStdWString(text);
}
