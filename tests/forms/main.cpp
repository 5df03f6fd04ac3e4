#include "forms/readable_style.h"

#include <QApplication>
#include <QTemporaryFile>
#include <gtest/gtest.h>

/// Real widgets on a screen that nobody sees.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // The build asks, and needs no screen for that.
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();
    // The screen that nobody sees is small unless it is told otherwise.
    QTemporaryFile screen;
    if (!screen.open() || screen.write(R"({"screens":[{"name":"unseen","x":0,"y":0,"width":1920,"height":1080,)"
                                       R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})") < 0)
        return 1;
    screen.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screen.fileName()));
    // No test's run is told of on the desktop of who runs it.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new Readable_Style);
    return RUN_ALL_TESTS();
}
