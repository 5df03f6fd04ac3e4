#pragma once

#include "forms/slot_guard.h"
#include "forms/startform.h"
#include "forms/window_operator.h"
#include "program.h"

/// Everything that the desktop program consists of, in the order in which its parts need each other.
struct Desktop
{
    Desktop() { Person.Attach(Prog, Guard, Form); }

    Window_Operator Person;
    Program Prog{Person};
    Slot_Guard Guard{Prog};
    Startform Form{Prog, Guard};
};
