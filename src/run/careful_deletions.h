#pragma once

struct Video_Work;

/// What a careful batch moves to the trash, and when: a source only while it is the file that was probed, a companion
/// only if this run's command read it, nobody has changed it since, and every video that would use it is done.

/// Takes note of the companions that the assembled command reads, as they are now.
void Remember_Companions(const Video_Work& work);

/// Moves the source to the trash and sets Run.Source_Deleted of its program; a warning if it stays.
void Trash_Source(Video_Work& work);

/// Moves the companions to the trash that are to go and may by now. Called behind each video that is done, whose log
/// tells of it.
void Trash_Companions(Video_Work& work);
