#pragma once

#include "run/video_work.h"

/// The steps of a careful video behind mkvmerge.

/// Looks at what mkvmerge left in the working folder.
bool Check(Video_Work& work);

/// What the outputs hold is on the disk behind it, where something goes to the trash for them.
bool Bring_To_Disk(Video_Work& work);

/// Gives the outputs their names; `old` gets the paths of what made way. From here to the end no halt is heard: these
/// steps belong together.
bool Name_Outputs(Video_Work& work, QStringList& old);

/// Journal first, then the trash: a power cut in between leaves a file too many, never one too few.
void Note_And_Trash(Video_Work& work, const QStringList& old);
