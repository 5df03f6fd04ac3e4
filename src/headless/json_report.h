#pragma once

#include "headless/batch_report.h"
#include "run/check_facts.h"

/// One JSON object a line on standard output; the first key of each is "event".
class Json_Report : public Batch_Report
{
  public:
    /// `check`: what --check tells of each video, too.
    Json_Report(bool check, std::FILE* out, std::FILE* err) : Batch_Report(out, err), check_(check) {}

    void Run_Started(int files) override;
    void File_Started(int index, const QString& source) override;
    void Command_Ready(const Program& video, const QString& source, const QString& output) override;
    void Progress(const QString& source, int percent, int overall) override;
    void File_Finished(const File_Outcome& outcome) override;
    void Ended(Batch_End end, int exit) override;

  protected:
    void Tell(int code, const QString& title, const QString& text) override;

  private:
    void Print_Check(const File_Outcome& outcome);

    bool check_;
    Check_Facts facts_;
};
