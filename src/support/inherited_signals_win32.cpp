#include "support/inherited_signals.h"

#include <windows.h>

/// There are no signals. What a parent may have left us, and we leave to our children, is whether the system asks in a
/// box of its own when a drive is empty, a library is missing or a program crashes: nobody may be there to answer.
void Take_Back_Inherited_Signals()
{
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
}
