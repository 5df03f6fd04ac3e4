#include "support/last_error.h"

#include "support/system_calls_win32.h"

#include <windows.h>

void Forget_Last_Error()
{
    ::SetLastError(ERROR_SUCCESS);
}

int Last_Error()
{
    return Last_System_Error();
}
