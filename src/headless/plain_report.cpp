#include "headless/plain_report.h"

#include "headless/print.h"
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

void Plain_Report::Command_Ready(const QString&, const QString&, const Command_Line& command)
{
    if (Watched().Run.Dry_Run)
        Print_Text(Out(),
                   Shell_Quoted(QStringList{Watched().Tools.System_MKVMerge_Path} + command.Arguments()) + u'\n');
}

void Plain_Report::Progress(int, int overall)
{
    bar_.Show(overall, Printable(File_Name_Of(Source_In_Work())));
}

/// The reason behind a file's name, if there is one.
static QString In_Brackets(const QString& reason)
{
    return reason.isEmpty() ? QString() : u" ("_s + Printable(reason) + u')';
}

/// What stands in the target now: one file, or the pieces of a split run.
static QString Written_Files(const File_Outcome& outcome)
{
    if (outcome.Pieces.size() < 2)
        return Printable(outcome.Output);
    return u"%1 to %2, %3 pieces"_s.arg(Printable(outcome.Output), Printable(File_Name_Of(outcome.Pieces.constLast())),
                                        QString::number(outcome.Pieces.size()));
}

void Plain_Report::File_Finished(const File_Outcome& outcome)
{
    Batch_Report::File_Finished(outcome);
    if (quiet_ || Watched().Run.Dry_Run)
        return;
    const QString name = Printable(File_Name_Of(outcome.Source));
    bar_.Wipe();
    switch (outcome.Status) {
    case File_Outcome::Kind::Done:
        Print_Text(Out(), u"done     %1 -> %2 (%3 s)\n"_s.arg(name, Written_Files(outcome),
                                                              QString::number(outcome.Seconds, 'f', 1)));
        break;
    case File_Outcome::Kind::Failed:
        Print_Text(Out(), u"failed   "_s + name + In_Brackets(outcome.Reason) + u'\n');
        break;
    case File_Outcome::Kind::Skipped:
        Print_Text(Out(), u"skipped  "_s + name + In_Brackets(outcome.Reason) + u'\n');
        break;
    case File_Outcome::Kind::Not_Run:
        Print_Text(Out(), u"not run  "_s + name + In_Brackets(outcome.Reason) + u'\n');
        break;
    }
}

void Plain_Report::Ended(Batch_End end, int)
{
    bar_.Wipe();
    if (quiet_ || Watched().Run.Dry_Run || end == Batch_End::Refused || end == Batch_End::Error)
        return;
    const Outcome_Counts& counts = Counts();
    QString line = u"%1: %2 done"_s.arg(end == Batch_End::Finished ? u"FINISHED"_s : u"INTERRUPTED"_s).arg(counts.Done);
    if (counts.Warnings > 0)
        line += u", %1 done with warnings"_s.arg(counts.Warnings);
    line += u", %1 failed"_s.arg(counts.Failed);
    if (counts.Skipped > 0)
        line += u", %1 skipped"_s.arg(counts.Skipped);
    if (counts.Not_Run > 0)
        line += u", %1 not run"_s.arg(counts.Not_Run);
    Print_Text(Out(), line + u'\n');
}
