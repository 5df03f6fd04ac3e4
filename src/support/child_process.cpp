#include "support/child_process.h"

Child_Process::Read Child_Process::Both(Read one, Read other)
{
    if (one == Read::Data || other == Read::Data)
        return Read::Data;
    return one == Read::Ended && other == Read::Ended ? Read::Ended : Read::Nothing_Yet;
}
