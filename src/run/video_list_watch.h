#pragma once

#include "state/run_listener.h"
#include "state/video_list.h"

#include <QHash>

struct Program;

/// Keeps the rows of the list in step with a run, classic or careful, and with a check; and in step with a run the line
/// below the bar.
class Video_List_Watch : public Run_Listener
{
  public:
    explicit Video_List_Watch(Program& program) : program_(program) {}

    void Refused(const QString& reason) override;
    void Run_Started(int files) override;
    void Videos_Chosen(const QStringList& sources) override;
    void File_Started(int index, const QString& source) override;
    void Command_Ready(const Program& video, const QString& source, const QString& output) override;
    void Progress(const QString& source, int percent, int overall) override;
    void Warned(const QString& title, const QString& text) override;
    void File_Finished(const File_Outcome& outcome) override;

  private:
    int Number_Of(const QString& source) const;
    Video_Row& Row(int number) const;
    void Take_In_Check(int number, const File_Outcome& outcome);
    void Take_Result(int number, const File_Outcome& outcome) const;

    Program& program_;
    QHash<int, Video_State> before_check_; ///< of the rows that are looked at
};
