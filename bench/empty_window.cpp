#include <QApplication>
#include <QMainWindow>

/// What a start is compared with: a window with nothing in it, over the same libraries.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1024, 600);
    window.show();
    return QApplication::exec();
}
