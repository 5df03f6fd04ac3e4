#pragma once

#include "support/controls.h"

#include <cstdint>

/// The text size of the two viewers, in points, and the label that tells it.

void Show_Text_Size(std::int16_t size, Label& label);
/// One more, up to 35.
void Increase_Text_Size(std::int16_t& size, Label& label);
/// One less, down to 4.
void Decrease_Text_Size(std::int16_t& size, Label& label);
/// The size of the main form's text.
void Reset_Text_Size(std::int16_t& size, std::int16_t main_form_size, Label& label);
