#pragma once

struct Careful_Run;
struct Video_Work;

/// How much of a careful batch is done, for the bar.

/// Where several videos are in work at a time, sizes count, as long ones and short ones are on their way together; one
/// after the other each video counts alike. 0 to 1.
double Share_Done(const Careful_Run& run);

/// A video in work has come to that percentage.
void Show_Percent(Video_Work& work, int percent);
