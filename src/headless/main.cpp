#include "headless/batch_program.h"
#include "headless/stop_signals.h"
#include "headless/utf8_locale.h"
#include "support/inherited_signals.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    Take_Back_Inherited_Signals();
    Watch_For_Stop_Signals();
    Use_UTF8_Locale();
    const QCoreApplication application(argc, argv);
    return Run_Batch_Program(QCoreApplication::arguments(), stdout, stderr, Stop_Signal_Came);
}
