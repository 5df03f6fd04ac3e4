#pragma once

#include "state/video_list.h"

#include <QString>

/// What the list of videos shows in its cells, in words.

/// "State", "Video", ...: the head of a column.
QString Column_Head(Video_Column column);

/// "37 %", "Done", "Left out".
QString State_Word(const Video_Row& row, bool takes_ticks);

/// A cell's text, one line.
QString Cell_Text(const Video_Row& row, Video_Column column, bool takes_ticks);

/// All that is known about a cell, lines separated by LF: what its tool tip says. Empty: no more than its text.
QString Cell_Hint(const Video_Row& row, Video_Column column);

/// "Videos (40)": the head of the list, and of the strip that stands for it.
QString List_Caption(const Video_List& list);
