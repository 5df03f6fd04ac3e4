#include "forms/close_key.h"

void Watch_Close_Key(QWidget&, const std::function<void()>&) {}
