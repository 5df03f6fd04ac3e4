#pragma once

#include "support/controls.h"

#include <cstdint>

/// The text size of the two viewers, in points, and the label that tells it.

/// The size of the main form's text, which a reset goes back to.
inline constexpr std::int16_t Main_Form_Text_Size = 10;

void Show_Text_Size(std::int16_t size, Label& label);
/// One more, up to 35.
void Increase_Text_Size(std::int16_t& size, Label& label);
/// One less, down to 4.
void Decrease_Text_Size(std::int16_t& size, Label& label);
void Reset_Text_Size(std::int16_t& size, Label& label);
