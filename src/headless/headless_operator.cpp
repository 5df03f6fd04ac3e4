#include "headless/headless_operator.h"

#include "headless/batch_report.h"
#include "run/halt.h"
#include "state/program.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

Headless_Operator::Headless_Operator(Batch_Report& report, std::function<bool()> stop_requested)
    : report_(report), stop_requested_(std::move(stop_requested))
{}

Message_Answer Headless_Operator::Show_Message(const Message_Box& box)
{
    report_.Show_Message(box);
    return box.Buttons == Message_Buttons::Ok ? Message_Answer::Ok : Message_Answer::Cancel;
}

/// How the run ended is settled: a halt comes too late to change it.
static bool Run_Is_Over(const Program& program)
{
    return program.Form.Progress == Progress_Look::Finished || program.Form.Progress == Progress_Look::Interrupted;
}

void Headless_Operator::Pump_Events()
{
    // Before a run too: a tool that hangs while it is tried is given up, and the run that follows is halted at its
    // first pump.
    if (!program_->Run.Halt_Requested && !Run_Is_Over(*program_) && stop_requested_())
        btn_Halt_MouseUp(*program_);
}

void Headless_Operator::Wait_With_Events(int milliseconds)
{
    // In slices, so that a signal doesn't have to wait for the end of the time. A halted run waits for mkvmerges that
    // it killed by name; here only its own child was killed, and that one is gone.
    constexpr int slice = 20;
    for (int left = milliseconds; left > 0 && !(program_->Run.Run_In_Progress && program_->Run.Halt_Requested);
         left -= slice) {
        std::this_thread::sleep_for(std::chrono::milliseconds(std::min(left, slice)));
        Pump_Events();
    }
}
