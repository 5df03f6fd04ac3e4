#pragma once

#include "state/video_list.h"

#include <QIcon>

class QPalette;

/// A small picture of a state, drawn for that palette: each has a shape of its own, so that no colour has to be told.
QIcon State_Icon(Video_State state, const QPalette& palette);
