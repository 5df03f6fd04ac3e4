#pragma once

#include "state/run_listener.h"
#include "state/run_tally.h"
#include "support/operator.h"
#include "support/run_time_error.h"

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <cstdio>
#include <memory>

struct Batch_Options;
struct Program;

/// How a run of vantorra-batch ended.
enum class Batch_End
{
    Finished,
    Interrupted,
    Refused,
    Error
};

/// What vantorra-batch says while it works: keeps count of the files and leaves the words to its two kinds, one for
/// people and one for programs.
class Batch_Report : public Run_Listener
{
  public:
    /// Lines for people and programs go to `out`, faults to `err`.
    Batch_Report(std::FILE* out, std::FILE* err) : out_(out), err_(err) {}

    /// The kind that the options ask for.
    static std::unique_ptr<Batch_Report> Make(const Batch_Options& options, std::FILE* out, std::FILE* err);

    /// The program whose run is reported; to be set before it begins.
    void Watch_Over(const Program& program) { program_ = &program; }

    const Outcome_Counts& Counts() const { return counts_; }

    /// A message box was raised: one line on standard error, whatever the kind. One about a video in work waits for its
    /// result: where that has a reason in words only the box's number is told, behind it.
    void Show_Message(const Message_Box& box);
    /// Something that the operator should know and that stops nothing.
    void Warn(const QString& title, const QString& text);
    /// More words about a refusal, for people only; empty ones say nothing.
    void Explain(const QString& text);
    /// The run-time error that ends the program.
    void Show_Error(const Run_Time_Error& error);
    /// The last thing said. `exit` is the program's exit status.
    virtual void Ended(Batch_End end, int exit) = 0;

    void Run_Started(int files) override;
    void File_Started(int index, const QString& source) override;
    void Progress(const QString& source, int percent, int overall) override;
    void Warned(const QString& title, const QString& text) override;
    void File_Finished(const File_Outcome& outcome) override;
    void Refused(const QString& reason) override;
    void Done_Before(int files, const QStringList& with_warnings) override;

  protected:
    const Program& Watched() const { return *program_; }

    /// A message, warning or error, for a kind that has more to do with it than the line on standard error.
    virtual void Tell(int /*code*/, const QString& /*title*/, const QString& /*text*/) {}

    /// Writes one line to standard error; control characters in it are made harmless.
    virtual void Complain(const QString& line);

    /// How much was worked through, by the sizes of the sources.
    double Bytes_Done() const;

    /// The boxes that wait for a result which never came, or which has no words of its own.
    void Say_Boxes();

    /// Says on standard error what is to be said about a video beside it.
    virtual void Say_Reasons(const File_Outcome& outcome);

    /// "NAME failed: reason" for each thing that was said about a video, in order.
    const QStringList& Reasons() const { return reasons_; }

    /// Since the run began; 0 before.
    qint64 Milliseconds() const { return clock_.isValid() ? clock_.elapsed() : 0; }

    std::FILE* Out() const { return out_; }

  private:
    std::FILE* out_;
    std::FILE* err_;
    const Program* program_ = nullptr;
    QString source_; ///< of the file that was taken in work last, until a file is done
    Videos_In_Work in_work_;
    QElapsedTimer clock_;
    QStringList reasons_;
    QStringList habits_told_;
    QStringList warned_;  ///< said since the last video was done
    QStringList boxes_;   ///< lines of the message boxes about the video in work
    QStringList numbers_; ///< their numbers: "#13"
    Outcome_Counts counts_;
};
