#pragma once

struct Folder_Entry;
struct Video_Work;

/// One video of a careful batch, from the first look at it to its place in the trash. Whatever goes wrong with it is
/// its outcome: nothing is thrown and no message box is shown.
///
/// The steps stand in this order, and each rests on those before it: held open and probed; its command assembled for
/// its final name; room and names tried; made in the working folder; checked; named; noted in the journal; and only
/// then its source, its companions and an old output go to the trash.

/// What the conductor does ahead of the video's thread: to hold it open, and to choose its name beside those of the
/// videos that were handed out before it.
void Begin_Video(Video_Work& work, const Folder_Entry& entry);

/// What a thread of its own does, if the video goes on: all that takes long. Where it concerns the other videos the
/// conductor is asked: room, working folder, companions.
void Work_On_Video(Video_Work& work);

/// What the conductor does behind that: names, journal, trash, and the outcome, also of a video that goes no further.
void End_Video(Video_Work& work);
