#pragma once

#include <cstdint>

/// What a mouse and a keyboard deliver to the rules of a form, without any toolkit's types.

enum class Mouse_Button
{
    Left,
    Right,
    Middle
};

/// The modifier keys that are held down.
struct Key_Modifiers
{
    bool Shift = false;
    bool Control = false;
    bool Alt = false;

    bool None() const { return !Shift && !Control && !Alt; }
};

/// The keys that the forms' own rules know.
enum class Key
{
    Other,
    Escape,
    F4,
    F12
};

struct Key_Press
{
    Key Code = Key::Other;
    Key_Modifiers Modifiers;
};

/// A mouse button let go over a control: where the pointer was, counted from the control's top left corner, and how
/// large the control is, all in pixels. The pointer may have left the control since the button went down. Time is the
/// window system's, in milliseconds from some beginning; 0: a key stood for the mouse.
struct Mouse_Release
{
    Mouse_Button Button = Mouse_Button::Left;
    Key_Modifiers Modifiers = {};
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;
    std::int64_t Time = 0;
};
