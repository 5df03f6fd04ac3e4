#pragma once

#include <functional>

class QWidget;

/// Calls `pressed` for Alt+F4 on the form where the system keeps that key from a window without a close button. Where
/// it doesn't, the key comes as all others do and this does nothing.
void Watch_Close_Key(QWidget& form, const std::function<void()>& pressed);
