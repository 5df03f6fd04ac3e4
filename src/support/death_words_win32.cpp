#include "support/death_words.h"

#include <utility>
#include <windows.h>

using namespace Qt::StringLiterals;

QString What_Ended(int exit_status)
{
    constexpr DWORD cancelled = 0xC0000120;
    constexpr DWORD missing_library = 0xC0000135;
    constexpr DWORD missing_entry = 0xC0000139;
    constexpr DWORD failed_start = 0xC0000142;
    constexpr DWORD fail_fast = 0xC0000409;
    static constexpr std::pair<DWORD, const char16_t*> names[] = {
        {STATUS_ACCESS_VIOLATION, u"an access violation"},
        {STATUS_IN_PAGE_ERROR, u"a page that couldn't be read"},
        {STATUS_NO_MEMORY, u"a lack of memory"},
        {STATUS_ILLEGAL_INSTRUCTION, u"an illegal instruction"},
        {STATUS_INTEGER_DIVIDE_BY_ZERO, u"a division by zero"},
        {STATUS_STACK_OVERFLOW, u"a stack overflow"},
        {STATUS_CONTROL_C_EXIT, u"Ctrl+C"},
        {STATUS_HEAP_CORRUPTION, u"a damaged heap"},
        {cancelled, u"a halt"},
        {missing_library, u"a missing library"},
        {missing_entry, u"a library of another version"},
        {failed_start, u"a library that couldn't be started"},
        {fail_fast, u"its own check"},
    };
    const auto status = static_cast<DWORD>(exit_status);
    const QString number = u"0x"_s + QString::number(status, 16).toUpper();
    for (const auto& [code, name] : names)
        if (code == status)
            return u"%1 (%2)"_s.arg(QString::fromUtf16(name), number);
    return u"the system's status "_s + number;
}
