#pragma once

#include "support/controls.h"

#include <QMargins>
#include <QRect>

class QWidget;

/// What the window manager has drawn around a window. A form's own isn't known before it is shown, but it is that of
/// the window that opens it. Nothing around one that fills the screen, or around none.
QMargins Frame_Around(const QWidget* window);

/// The place moved, and shrunk where it must be, so that it lies wholly, with `frame` around it, on the work area of
/// the screen it mostly stands on; of the first screen if it stands on none.
QRect Onto_Screen(const QRect& place, const QMargins& frame = {});

/// The record's place with at least that size. What no screen is as far away or as large as is cut down, so that no
/// sum overflows.
QRect Rect_Of(const Form_Place& place, const QSize& least = {});
