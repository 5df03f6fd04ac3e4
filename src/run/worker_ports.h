#pragma once

#include "state/run_listener.h"
#include "support/operator.h"

class Thread_Calls;
struct Program;

/// The ports of a program that works on one video on a thread of its own. What it says is said by the run's program, on
/// the thread that conducts the run.

/// The person in front, as a video's own program has them.
class Worker_Operator : public Operator
{
  public:
    /// `run` is the run's program, `own` the one that asks.
    Worker_Operator(Thread_Calls& calls, Program& run, Program& own) : calls_(calls), run_(run), own_(own) {}

    Message_Answer Show_Message(const Message_Box& box) override;

    void Show_Modal(const QString&) override {}

    void Show_Form(const QString&) override {}

    QString Pick_Folder(const QString&, const QString&) override { return {}; }

    QStringList Pick_File(const File_Question&) override { return {}; }

    /// The halt comes in here.
    void Pump_Events() override;

    /// Doesn't wait: nobody looks at the forms of this program.
    void Wait_With_Events(int) override { Pump_Events(); }

    bool Open_Document(const QString&) override { return false; }

  private:
    Thread_Calls& calls_;
    Program& run_;
    Program& own_;
};

/// Who listens to the run. Progress goes another way, as the run's share has to be worked out.
class Worker_Listener : public Run_Listener
{
  public:
    Worker_Listener(Thread_Calls& calls, const Program& run) : calls_(calls), run_(run) {}

    void Command_Ready(const Program& video, const QString& source, const QString& output) override;
    void Reported(int code) override;
    void Warned(const QString& title, const QString& text) override;

  private:
    Thread_Calls& calls_;
    const Program& run_;
};
