#pragma once

#include "state/video_list.h"

#include <QSet>
#include <QString>
#include <QStringList>

struct Program;

/// How the list of videos is filled and kept in step with the disk, and what its tick boxes do. Names only: nothing is
/// opened or probed here.

/// The state that a row shows: Left_Out for one that isn't ticked and has no result, where ticks count.
Video_State Shown_State(const Video_Row& row, bool takes_ticks);

/// True for a video that has an output, whether its source is still there or not.
bool Has_Output(const Video_Row& row);

/// The list of another folder: a ticked, waiting row for each of `paths`, which are below `folder` and in the order of
/// the walk.
void Fill_Videos(Video_List& list, const QString& folder, const QStringList& paths);

/// The folder as it is now: rows that are still there keep all that is known of them, new ones are ticked, and of those
/// that are gone only the ones stay that have an output. False if nothing changed.
bool Recount_Videos(Video_List& list, const QStringList& paths);

/// A row has changed; the window shows it at its next turn.
void Touch(Video_List& list, int number);

/// The percentage of a row in work has changed.
void Set_Percent(Video_List& list, int number, int percent);

/// The number of the row of that path below the folder, made at the end of the list if there is none.
int Row_Number(Video_List& list, const QString& path);

/// The paths that are ticked.
QSet<QString> Ticked_Paths(const Video_List& list);

/// Ticks the rows of these paths, and no others.
void Tick_Only(Video_List& list, const QSet<QString>& paths);

/// A click on the tick box of a row.
void Tick_Video(Program& program, int number);
/// Takes in what is marked, if any of it is left out; else leaves all of it out.
void Take_In_Or_Leave_Out(Program& program);

/// How many videos a run over that folder would look at, by the settings as they are.
int Videos_In_Folder(const Program& program, const QString& folder);

/// The videos' folder as it is on the disk; called when it may have changed. Nothing while a run or a check goes on.
void Recount_Videos_Folder(Program& program);

/// Fills the list if Options.Path_Videos has become another one, and notes whether ticks count. True if it was filled.
/// Nothing while a run or a check goes on.
bool Follow_Videos_Folder(Program& program);

/// Shows and captions the buttons beside Run by what there is to do.
void Set_List_Buttons(Program& program);
