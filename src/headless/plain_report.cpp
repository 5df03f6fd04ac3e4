#include "headless/plain_report.h"

#include "headless/print.h"
#include "state/program.h"
#include "support/paths.h"

using namespace Qt::StringLiterals;

Plain_Report::Plain_Report(bool quiet, std::FILE* out, std::FILE* err)
    : Batch_Report(out, err), quiet_(quiet), bar_(err, !quiet)
{}

void Plain_Report::Complain(const QString& line)
{
    bar_.Wipe();
    Batch_Report::Complain(line);
}

void Plain_Report::Command_Ready(const QString& source, const QString& output, const Command_Line& command)
{
    Batch_Report::Command_Ready(source, output, command);
    if (Watched().Run.Dry_Run)
        Print_Text(Out(),
                   Shell_Quoted(QStringList{Watched().Tools.System_MKVMerge_Path} + command.Arguments()) + u'\n');
}

void Plain_Report::Progress(int, int overall)
{
    bar_.Show(overall, Printable(File_Name_Of(Source_In_Work())));
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
        Print_Text(Out(), u"done     %1 -> %2 (%3 s)\n"_s.arg(name, Printable(outcome.Output),
                                                              QString::number(outcome.Seconds, 'f', 1)));
        break;
    case File_Outcome::Kind::Failed:
        Print_Text(Out(),
                   u"failed   %1%2\n"_s.arg(
                       name, outcome.Exit < 0 ? QString() : u" (mkvmerge ended with status %1)"_s.arg(outcome.Exit)));
        break;
    case File_Outcome::Kind::Skipped:
        Print_Text(Out(), u"skipped  %1\n"_s.arg(name));
        break;
    }
}

void Plain_Report::Ended(Batch_End end, int)
{
    bar_.Wipe();
    if (quiet_ || Watched().Run.Dry_Run || end == Batch_End::Refused || end == Batch_End::Error)
        return;
    Print_Text(Out(), u"%1: %2 done, %3 failed\n"_s.arg(end == Batch_End::Finished ? u"FINISHED"_s : u"INTERRUPTED"_s)
                          .arg(Done())
                          .arg(Failed()));
}
