#include "support/memory_pages.h"

#include <windows.h>

std::size_t Page_Size()
{
    SYSTEM_INFO system = {};
    ::GetSystemInfo(&system);
    return system.dwPageSize;
}
