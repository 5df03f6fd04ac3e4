#pragma once

#include "state/run_listener.h"
#include "support/disk_steps.h"

struct Careful_Walk;

/// One video of a careful batch, from the first look at it to its place in the trash. Whatever goes wrong with it is
/// its outcome: nothing is thrown and no message box is shown.
///
/// The steps stand in this order, and each rests on those before it: held open and probed; its command assembled for
/// its final name; room and names tried; made in the working folder; checked; named; noted in the journal; and only
/// then its source, its companions and an old output go to the trash.
File_Outcome Run_Careful_Video(Careful_Walk& walk, const Folder_Entry& entry);
