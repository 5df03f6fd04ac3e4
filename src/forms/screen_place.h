#pragma once

#include "support/controls.h"

#include <QRect>

/// The place moved, and shrunk where it must be, so that it lies wholly on the work area of the screen it mostly
/// stands on; of the first screen if it stands on none.
QRect Onto_Screen(const QRect& place);

/// The record's place with at least that size. What no screen is as far away or as large as is cut down, so that no
/// sum overflows.
QRect Rect_Of(const Form_Place& place, const QSize& least = {});
