#include "forms/unseen_screen.h"

#include <QTemporaryFile>

bool Use_Unseen_Screen(QTemporaryFile& description)
{
    // It is small unless it is told otherwise.
    if (!description.open() ||
        description.write(R"({"screens":[{"name":"unseen","x":0,"y":0,"width":1920,"height":1080,)"
                          R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})") < 0)
        return false;
    description.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(description.fileName()));
    // No test's run is told of on the desktop of who runs it.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    return true;
}
