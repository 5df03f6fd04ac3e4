#pragma once

struct JobOptions;

/// What the boxes of the language filters come to: told anew after each click on one of them, and when the settings
/// were read.

/// AudioFilterMode from its boxes: 1 strip, 2 English only, 3 custom cut, 4 custom keep, 0 none.
void Set_Audio_Filter_Mode(JobOptions& options);
/// SubsFilterMode in the same way, and SubsFilterKeep, which only modes 3 and 4 change.
void Set_Subs_Filter_Mode(JobOptions& options);
