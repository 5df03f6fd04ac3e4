#include "headless/check_report.h"

#include "headless/print.h"
#include "support/paths.h"
#include "support/shown_text.h"

#include <utility>

using namespace Qt::StringLiterals;

void Check_Report::Command_Ready(const Program& video, const QString&, const QString&)
{
    facts_ = Check_Facts_Of(video, video.Run.Mkvmerge_Arguments);
}

void Check_Report::Say_Reasons(const File_Outcome& outcome)
{
    ++looked_at_;
    const Check_Facts facts = std::exchange(facts_, {});
    QString text = outcome.Name();
    if (!outcome.Output.isEmpty())
        text += u" -> "_s + outcome.Output;
    QStringList lines{text};
    if (!facts.Tracks.isEmpty())
        lines += u"    tracks    "_s + facts.Tracks.join(u", "_s);
    if (!facts.Added.isEmpty())
        lines += u"    added     "_s + facts.Added.join(u", "_s);
    if (!facts.Chapters.isEmpty())
        lines += u"    chapters  "_s + facts.Chapters;
    if (!outcome.Replaces.isEmpty())
        lines += u"    replaces  "_s + outcome.Replaces.join(u", "_s);
    if (outcome.Status == File_Outcome::Kind::Skipped)
        lines += u"    skipped   "_s + outcome.Reason;
    for (const QString& problem : Problems_Of(outcome))
        lines += u"    PROBLEM   "_s + problem;
    for (const QString& line : lines)
        Print_Text(Out(), Printable(line) + u'\n');
}

void Check_Report::Ended(Batch_End end, int)
{
    if (end == Batch_End::Finished || end == Batch_End::Interrupted)
        Print_Text(Out(), u"%1%2 looked at, %3 with problems\n"_s
                              .arg(end == Batch_End::Interrupted ? u"INTERRUPTED: "_s : QString())
                              .arg(looked_at_)
                              .arg(Counts().Problems));
}
