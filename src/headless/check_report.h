#pragma once

#include "headless/batch_report.h"
#include "run/check_facts.h"

/// --check: a few lines for each video on standard output, with every problem that can be known before the run.
class Check_Report : public Batch_Report
{
  public:
    using Batch_Report::Batch_Report;

    void Command_Ready(const Program& video, const QString& source, const QString& output) override;
    void Ended(Batch_End end, int exit) override;

  protected:
    void Say_Reasons(const File_Outcome& outcome) override;

  private:
    Check_Facts facts_;
    int looked_at_ = 0;
};
