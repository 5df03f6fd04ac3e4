#pragma once

#include <QRect>

/// The place moved, and shrunk where it must be, so that it lies wholly on the work area of the screen it mostly
/// stands on; of the first screen if it stands on none.
QRect Onto_Screen(const QRect& place);
