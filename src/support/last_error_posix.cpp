#include "support/last_error.h"

#include <cerrno>

void Forget_Last_Error()
{
    errno = 0;
}

int Last_Error()
{
    return errno;
}
