#include "headless/plain_report.h"

#include "headless/print.h"
#include "run/run_summary.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/shown_text.h"

using namespace Qt::StringLiterals;

Plain_Report::Plain_Report(bool quiet, std::FILE* out, std::FILE* err)
    : Batch_Report(out, err), quiet_(quiet), bar_(err, !quiet)
{}

void Plain_Report::Complain(const QString& line)
{
    bar_.Wipe();
    Batch_Report::Complain(line);
}

void Plain_Report::Command_Ready(const Program& video, const QString&, const QString&)
{
    if (Watched().Run.Dry_Run)
        Print_Text(Out(), Shell_Quoted(QStringList{Watched().Tools.System_MKVMerge_Path} +
                                       video.Run.Mkvmerge_Arguments.Arguments()) +
                              u'\n');
}

void Plain_Report::Run_Started(int files)
{
    Batch_Report::Run_Started(files);
    files_ = files;
}

void Plain_Report::File_Started(int index, const QString& source)
{
    Batch_Report::File_Started(index, source);
    index_ = index;
}

void Plain_Report::Progress(const QString& source, int percent, int overall)
{
    Batch_Report::Progress(source, percent, overall);
    // Speed and rest are guesses that need a moment.
    constexpr double first_guess = 2;
    const double seconds = static_cast<double>(Milliseconds()) / 1000;
    Bar_Facts facts{.Index = index_, .Files = files_, .Percent = overall, .Name = Printable(File_Name_Of(source))};
    if (seconds >= first_guess) {
        facts.Bytes_A_Second = Bytes_Done() / seconds;
        if (overall > 0)
            facts.Seconds_Left = static_cast<qint64>(seconds * (100 - overall) / overall);
    }
    bar_.Show(facts);
}

void Plain_Report::Say_Reasons(const File_Outcome& outcome)
{
    if (!quiet_ && !Watched().Run.Dry_Run)
        Print_Result(outcome);
    Batch_Report::Say_Reasons(outcome);
}

/// What stands in the target now: one file, or the pieces of a split run.
static QString Written_Files(const File_Outcome& outcome)
{
    if (outcome.Pieces.size() < 2)
        return Printable(outcome.Output);
    return u"%1 to %2, %3 pieces"_s.arg(Printable(outcome.Output), Printable(File_Name_Of(outcome.Pieces.constLast())),
                                        QString::number(outcome.Pieces.size()));
}

void Plain_Report::Print_Result(const File_Outcome& outcome)
{
    const QString name = Printable(outcome.Name());
    bar_.Wipe();
    switch (outcome.Status) {
    case File_Outcome::Kind::Done:
        Print_Text(Out(), u"done     %1 -> %2 (%3 s)\n"_s.arg(name, Written_Files(outcome),
                                                              QString::number(outcome.Seconds, 'f', 1)));
        break;
    case File_Outcome::Kind::Failed:
        Print_Text(Out(), u"failed   "_s + name + u'\n');
        break;
    case File_Outcome::Kind::Skipped:
        Print_Text(Out(), u"skipped  "_s + name + u'\n');
        break;
    case File_Outcome::Kind::Not_Run:
        Print_Text(Out(), u"not run  "_s + name +
                              (outcome.Reason.isEmpty() ? QString() : u" ("_s + Printable(outcome.Reason) + u')') +
                              u'\n');
        break;
    }
}

void Plain_Report::Ended(Batch_End end, int)
{
    bar_.Wipe();
    if (quiet_ || Watched().Run.Dry_Run || end == Batch_End::Refused || end == Batch_End::Error)
        return;
    Print_Text(Out(), (end == Batch_End::Finished ? u"FINISHED: "_s : u"INTERRUPTED: "_s) +
                          Summary_Of(Counts(), Milliseconds()) + u'\n');
    // Again, where they can be found behind a thousand lines. What is told beside the only video stands right above.
    if (files_ > 1)
        for (const QString& reason : Reasons())
            Complain(reason);
}
