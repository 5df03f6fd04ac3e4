#include "forms/readable_style.h"
#include "forms/unseen_screen.h"

#include <QApplication>
#include <QTemporaryFile>
#include <gtest/gtest.h>

/// Real widgets on a screen that nobody sees.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QTemporaryFile screen;
    if (!Use_Unseen_Screen(screen))
        return 1;
    // A test answers only what it can see into.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(new Readable_Style);
    return RUN_ALL_TESTS();
}
