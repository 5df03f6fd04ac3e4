#include "forms/desktop.h"

#include "forms/drawn_icon.h"
#include "life/instance_lock.h"
#include "life/start_up.h"
#include "tools/tool_discovery.h"

#include <QApplication>

bool Desktop::Start(Instance_Lock* lock)
{
    Form.Propose_Place();
    bool loaded = false;
    Guard.Call([&] { loaded = Load_Form(Prog, lock); });
    if (!loaded || Guard.Ended())
        return false;
    if (lock)
        lock->When_Called([this] { Guard.Call([this] { Person.Raise_Main_Form(); }); });
    Form.Show_First();
    // Drawn at all its sizes it takes a while; nobody misses it meanwhile.
    QApplication::setWindowIcon(Drawn_Icon(QStringLiteral("vantorra")));
    Guard.Call([&] { Discover_Tools(Prog); });
    Form.Become_Ready();
    return !Guard.Ended();
}
