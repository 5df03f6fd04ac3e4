#pragma once

#include "support/controls.h"

/// Where a secondary form is put.
enum class Placement
{
    First_Run = 0,      ///< centred on the main form, unless it was placed already
    Centred = 12,       ///< centred on the main form: F12
    Over_Main_Form = 13 ///< place and size of the main form: Shift+F12
};

/// Puts a form relative to the main form, in a normal window. A form larger than the main form overlaps it evenly.
/// `placed`: the form has been placed before.
void Place_Form(Placement placement, Form_Place& form, const Form_Place& main_form, bool placed = false);

/// Key codes that forms share.
inline constexpr int Key_Enter = 13;
inline constexpr int Key_Escape = 27;
inline constexpr int Key_Execute = 41; ///< acts as Enter
inline constexpr int Key_F12 = 123;

/// Moves a form so that it lies within the screen, unless it is minimised or maximised. One that is larger than the
/// screen keeps its top left corner on it.
void Ensure_Visible(Form_Place& form, const Form_Place& screen);
