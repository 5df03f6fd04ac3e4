#include "forms/desktop.h"

#include "inspect/tool_discovery.h"
#include "settings/start_up.h"

bool Desktop::Start(Instance_Lock* lock)
{
    Form.Propose_Place();
    bool loaded = false;
    Guard.Call([&] { loaded = Load_Form(Prog, lock); });
    if (!loaded || Guard.Ended())
        return false;
    Form.Show_First();
    Guard.Call([&] { Discover_Tools(Prog); });
    Form.Become_Ready();
    return !Guard.Ended();
}
