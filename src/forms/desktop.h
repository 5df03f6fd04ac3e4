#pragma once

#include "forms/slot_guard.h"
#include "forms/startform.h"
#include "forms/window_operator.h"
#include "run/video_list_watch.h"
#include "state/program.h"

class Instance_Lock;

/// Everything that the desktop program consists of, in the order in which its parts need each other.
struct Desktop
{
    Desktop()
    {
        Person.Attach(Prog, Guard, Form);
        Prog.Listener = &Watch;
    }

    /// From Settings.App_Folder to a window that is ready. The tools are tried once it is seen: they take longer than
    /// all else, and what they lack is told over it. False if the program should end: another window has the folder, or
    /// the guard has met an error.
    bool Start(Instance_Lock* lock);

    Window_Operator Person;
    Program Prog{Person};
    Video_List_Watch Watch{Prog};
    Slot_Guard Guard{Prog};
    Startform Form{Prog, Guard};
};
