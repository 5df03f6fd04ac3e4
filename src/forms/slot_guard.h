#pragma once

#include <QString>
#include <functional>

struct Program;

/// Thrown by the operator's questions once the program has ended, so that whatever asks is unwound up to its slot.
struct End_Of_Program
{};

/// What every slot of every form calls through: runs the rule, then has the records rendered. No exception crosses
/// Qt's event loop: an error that the program can't go on from ends here, with an entry in the process log, one box
/// and the end of the event loop.
class Slot_Guard
{
  public:
    explicit Slot_Guard(Program& program) : program_(program) {}

    /// What brings all forms in step with the records after each rule.
    void Set_Renderer(std::function<void()> render) { render_ = std::move(render); }

    void Call(const std::function<void()>& rule);

    /// The forms are going: from here on no slot calls a rule.
    void Stop() { ending_ = true; }

    /// True once a fatal error was told: nothing is done any more.
    bool Ended() const { return ended_; }

  private:
    void End_Program(const QString& message);

    Program& program_;
    std::function<void()> render_ = [] {};
    bool ending_ = false;
    bool ended_ = false;
};

/// Status of a program that ended through an error.
constexpr int Run_Time_Error_Status = 70;
