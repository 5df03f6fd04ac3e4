#pragma once

#include "state/run_listener.h"
#include "support/disk_steps.h"

struct Careful_Run;
struct Careful_Walk;

/// What a careful batch moves to the trash, and when: a source only while it is the file that was probed, a companion
/// only if this run's command read it, nobody has changed it since, and every video that would use it is done.

/// Takes note of the companions that the assembled command reads, as they are now.
void Remember_Companions(Careful_Walk& walk);

/// Moves the source to the trash and sets Run.Source_Deleted; a warning if it stays.
void Trash_Source(Careful_Walk& walk, const Held_File& source, File_Outcome& outcome);

/// Moves the companions to the trash that are to go and may by now. Called behind each video and at the end.
void Trash_Companions(Careful_Run& run);
