#include "forms/desktop.h"
#include "forms/desktop_style.h"
#include "forms/session_end.h"
#include "life/app_folder.h"
#include "life/instance_lock.h"
#include "support/inherited_signals.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    Take_Back_Inherited_Signals();
    QApplication application(argc, argv);
    // No display name: the desktop would hang it behind every window's title.
    QApplication::setApplicationName(u"vantorra"_s);
    QApplication::setApplicationVersion(QStringLiteral(VANTORRA_VERSION));
    QApplication::setDesktopFileName(u"vantorra"_s);
    const Desktop_Style style;
    // A box that is answered before the window is seen must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);

    Desktop desktop;
    desktop.Prog.Settings.App_Folder = Choose_App_Folder(App_Folder_Places_Of_This_Process({}));

    Instance_Lock lock;
    if (!desktop.Start(&lock))
        return desktop.Guard.Ended() ? Run_Time_Error_Status : 0;
    const Session_End session(desktop.Prog, desktop.Guard, desktop.Form);
    return QApplication::exec();
}
