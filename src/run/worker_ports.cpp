#include "run/worker_ports.h"

#include "state/program.h"
#include "support/thread_calls.h"

Message_Answer Worker_Operator::Show_Message(const Message_Box& box)
{
    Message_Answer answer = Message_Answer::Cancel;
    calls_.Do([&] { answer = run_.Person.Show_Message(box); });
    return answer;
}

void Worker_Operator::Pump_Events()
{
    own_.Run.Halt_Requested = own_.Run.Halt_Requested || calls_.Halted;
}

void Worker_Listener::Command_Ready(const Program& video, const QString& source, const QString& output)
{
    // It reads the video's program, which has to stand still meanwhile.
    calls_.Do([&] {
        if (run_.Listener)
            run_.Listener->Command_Ready(video, source, output);
    });
}

void Worker_Listener::Reported(int code)
{
    calls_.Do([&] {
        if (run_.Listener)
            run_.Listener->Reported(code);
    });
}

void Worker_Listener::Warned(const QString& title, const QString& text)
{
    calls_.Do([&] {
        if (run_.Listener)
            run_.Listener->Warned(title, text);
    });
}
