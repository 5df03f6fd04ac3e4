#include "ui_startform.h"

#include <QApplication>

/// What a start is compared with: a window of the same size, made of the same .ui file and widgets over the same
/// libraries, and nothing behind it.
/// usage: bare_window WIDTH HEIGHT
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    QMainWindow window;
    Ui::Startform ui;
    ui.setupUi(&window);
    window.resize(arguments.value(1).toInt(), arguments.value(2).toInt());
    window.show();
    return QApplication::exec();
}
