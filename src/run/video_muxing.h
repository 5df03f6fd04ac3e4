#pragma once

#include "run/video_work.h"

/// Runs mkvmerge into the working folder and keeps its words; its progress is shown.
bool Mux(Video_Work& work);
