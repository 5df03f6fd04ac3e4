#pragma once

#include "headless/batch_report.h"
#include "headless/progress_bar.h"

/// A line for each file on standard output; reasons and warnings on standard error beside the file, and again under the
/// summary; and a bar on standard error where that is a terminal. In a dry run
/// standard output holds the commands and nothing else, so that it can be read by a shell.
class Plain_Report : public Batch_Report
{
  public:
    Plain_Report(bool quiet, std::FILE* out, std::FILE* err);

    void Command_Ready(const Program& video, const QString& source, const QString& output) override;
    void Run_Started(int files) override;
    void File_Started(int index, const QString& source) override;
    void Progress(const QString& source, int percent, int overall) override;
    void Ended(Batch_End end, int exit) override;

  protected:
    void Complain(const QString& line) override;
    void Say_Reasons(const File_Outcome& outcome) override;

  private:
    void Print_Result(const File_Outcome& outcome);

    bool quiet_;
    int index_ = 0; ///< of the file in work, from 1
    int files_ = 0;
    Progress_Bar bar_;
};
