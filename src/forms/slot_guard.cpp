#include "forms/slot_guard.h"

#include "forms/window_operator.h"
#include "state/program.h"
#include "support/run_time_error.h"
#include "workbenches/last_entry.h"

#include <QCoreApplication>
#include <QDebug>
#include <new>

using namespace Qt::StringLiterals;

void Slot_Guard::Call(const std::function<void()>& rule)
{
    if (ending_)
        return;
    try {
        rule();
        if (!ending_)
            render_();
    } catch (const End_Of_Program&) {
        return;
    } catch (const Run_Time_Error& error) {
        End_Program(error.Message());
    } catch (const std::bad_alloc&) {
        End_Program(Out_Of_Memory_Error().Message());
    } catch (const std::exception& error) {
        End_Program(u"Run-time error: "_s + QString::fromLocal8Bit(error.what()));
    }
}

void Slot_Guard::End_Program(const QString& message)
{
    ending_ = true; // no slot does anything while the entry is written
    Write_Last_Entry(program_);
    ended_ = true;
    // Whoever sent a signal reads no box.
    if (program_.Form.Asked_To_Go)
        qCritical().noquote() << message;
    else
        Show_Fatal_Error(message);
    QCoreApplication::exit(Run_Time_Error_Status);
}
