#pragma once

#include "support/controls.h"

struct WindowBox;

/// Places a viewer at its first activation: on the first run ever centred on the main form, and `not_first_run` is
/// set; else at the saved place and size, if one was saved.
void Place_Viewer(Form_Place& form, const Form_Place& main_form, const WindowBox& saved, bool& not_first_run);

/// Where the viewer stood, for the settings file.
WindowBox Viewer_Box(const Form_Place& form);
