#pragma once

#include "headless/batch_report.h"
#include "headless/progress_bar.h"

/// A line for each file on standard output, and a bar on standard error where that is a terminal. In a dry run
/// standard output holds the commands and nothing else, so that it can be read by a shell.
class Plain_Report : public Batch_Report
{
  public:
    Plain_Report(bool quiet, std::FILE* out, std::FILE* err);

    void Command_Ready(const QString& source, const QString& output, const Command_Line& command) override;
    void Progress(int percent, int overall) override;
    void File_Finished(const File_Outcome& outcome) override;
    void Ended(Batch_End end, int exit) override;

  protected:
    void Complain(const QString& line) override;

  private:
    bool quiet_;
    Progress_Bar bar_;
};
