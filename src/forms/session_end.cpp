#include "forms/session_end.h"

#include "forms/slot_guard.h"
#include "forms/startform.h"
#include "run/halt.h"
#include "settings/settings_store.h"
#include "state/program.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

void Session_End::Save_Settings()
{
    form_.Leave_Boxes();
    guard_.Call([this] { Write_Settings(program_, false); });
}

/// Closes the box that is open, if one is: nobody answers it any more.
static void Dismiss_Box()
{
    if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        box->done(QDialog::Rejected);
}

void Session_End::Asked_To_Go()
{
    program_.Form.Asked_To_Go = true;
    if (guard_.Ended()) {
        Dismiss_Box(); // the last one; the program ends behind it
        return;
    }
    if (!program_.Run.Run_In_Progress && !program_.Run.Press_In_Work) {
        form_.close();
        return;
    }
    guard_.Call([this] { btn_Halt_MouseUp(program_); });
    Dismiss_Box();
    // The run ends inside the slot that began it; look again once that may be over.
    QTimer::singleShot(100, this, [this] { Asked_To_Go(); });
}
