#pragma once

#include "state/video_list.h"

#include <QString>
#include <array>
#include <vector>

/// Which rows of the list are shown, and in which order: the chips above it, the filter field, the heads of its
/// columns.

inline constexpr std::size_t Chip_Count = 9;

/// How many rows each chip stands for, by Video_Chip.
std::array<int, Chip_Count> Count_Chips(const Video_List& list);

/// "Failed 2".
QString Chip_Caption(Video_Chip chip, int count);

/// False for a chip that is only there while it stands for some rows.
bool Is_Always_Shown(Video_Chip chip);

/// The numbers of the rows that chip and filter let through, in the order that the person wants.
std::vector<int> Shown_Rows(const Video_List& list);

void Choose_Chip(Video_List& list, Video_Chip chip);
void Set_Filter(Video_List& list, const QString& text);

/// A click on a column's head: by that column, then the other way round, then in the order of the walk again.
void Sort_Videos(Video_List& list, Video_Column column);
