#pragma once

#include "support/operator.h"

#include <functional>

class Batch_Report;
struct Program;

/// Nobody sits in front: message boxes become lines of the report and are never waited for, questions are cancelled,
/// and a signal is the halt button.
class Headless_Operator : public Operator
{
  public:
    /// `stop_requested` says whether the run is to be halted; it is asked whenever events are pumped.
    Headless_Operator(Batch_Report& report, std::function<bool()> stop_requested);

    /// The program whose halt button a signal presses; to be set before anything is asked of the operator.
    void Watch_Over(Program& program) { program_ = &program; }

    Message_Answer Show_Message(const Message_Box& box) override;

    void Show_Modal(const QString&) override {}

    void Show_Form(const QString&) override {}

    QString Pick_Folder(const QString&, const QString&) override { return {}; }

    QStringList Pick_File(const File_Question&) override { return {}; }

    void Pump_Events() override;
    void Wait_With_Events(int milliseconds) override;

    bool Open_Document(const QString&) override { return false; }

    bool Is_Asked_To_Stop() override { return stop_requested_(); }

  private:
    Batch_Report& report_;
    std::function<bool()> stop_requested_;
    Program* program_ = nullptr;
};
