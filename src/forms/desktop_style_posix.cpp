#include "forms/desktop_style.h"

#include "forms/readable_style.h"

#include <QApplication>

/// Qt follows the desktop by itself.
class Desktop_Style::Watch
{};

Desktop_Style::Desktop_Style()
{
    QApplication::setStyle(new Readable_Style);
}

Desktop_Style::~Desktop_Style() = default;
