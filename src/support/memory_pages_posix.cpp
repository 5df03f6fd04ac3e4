#include "support/memory_pages.h"

#include "support/run_time_error.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

std::size_t Page_Size()
{
    const long size = ::sysconf(_SC_PAGESIZE);
    if (size <= 0)
        throw Run_Time_Error(Error_Number::Invalid_Procedure_Call, u"Cannot obtain page size"_s);
    return static_cast<std::size_t>(size);
}
