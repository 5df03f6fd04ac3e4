#include "run/run_summary.h"

#include "settings/preset_file.h"
#include "state/program.h"
#include "support/amount_text.h"
#include "support/shown_text.h"

#include <QFileInfo>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

/// A guess at the time left needs so long, in milliseconds.
static constexpr qint64 Before_First_Guess = 5000;

void Count_Outcome(const File_Outcome& outcome, qint64 source_bytes, Outcome_Counts& counts)
{
    switch (outcome.Status) {
    case File_Outcome::Kind::Done:
        ++(outcome.Warnings.isEmpty() ? counts.Done : counts.Warnings);
        counts.Bytes += source_bytes;
        break;
    case File_Outcome::Kind::Failed:
        ++counts.Failed;
        break;
    case File_Outcome::Kind::Skipped:
        ++counts.Skipped;
        break;
    case File_Outcome::Kind::Not_Run:
        ++counts.Not_Run;
        break;
    }
    if (outcome.Source_Kept)
        ++counts.Kept;
}

QString Summary_Of(const Outcome_Counts& counts, qint64 milliseconds)
{
    return u"%1 done, %2 with warnings, %3 failed, %4 skipped, %5 not run - %6 in %7"_s.arg(
        QString::number(counts.Done), QString::number(counts.Warnings), QString::number(counts.Failed),
        QString::number(counts.Skipped), QString::number(counts.Not_Run), Size_Text(static_cast<double>(counts.Bytes)),
        Time_Text(milliseconds / 1000));
}

qint64 Age_Of_Run(const Program& program)
{
    const QDateTime& started = program.Run.Started;
    return started.isValid() ? std::max(started.msecsTo(program.Now()), qint64(0)) : 0;
}

bool Is_Long_Run(const Program& program)
{
    constexpr qint64 minute = 60'000;
    return Age_Of_Run(program) > minute;
}

void Tally_Sources(Run_Tally& tally, const QStringList& sources)
{
    for (const QString& source : sources)
        tally.Bytes_In_All += QFileInfo(source).size();
}

void Tally_Run_Started(Program& program, int files)
{
    Run_Tally& tally = program.Run.Tally;
    tally.Files = files;
    // A careful batch has told which ones it takes.
    if (!program.Run.Careful) {
        QStringList sources;
        for (const QString& name : program.Run.Video_File_List)
            sources += program.Options.Path_Videos + name;
        Tally_Sources(tally, sources);
    }
    Show_Running_Summary(program);
}

void Tally_File_Started(Program& program, int index, const QString& source)
{
    Run_Tally& tally = program.Run.Tally;
    tally.Index = index;
    // Now: it may be in the trash when it is done.
    tally.In_Work.insert(source, {.Bytes = QFileInfo(source).size(), .Percent = 0});
    Show_Running_Summary(program);
}

void Tally_Progress(Program& program, const QString& source, int percent)
{
    program.Run.Tally.In_Work[source].Percent = percent;
    Show_Running_Summary(program);
}

void Tally_File_Finished(Program& program, const File_Outcome& outcome)
{
    Run_Tally& tally = program.Run.Tally;
    const qint64 bytes = tally.In_Work.take(outcome.Source).Bytes;
    Count_Outcome(outcome, bytes, tally.Counts);
    tally.Bytes_Past += bytes;
    Show_Running_Summary(program);
}

double Bytes_Done_Of(const Videos_In_Work& in_work)
{
    double bytes = 0;
    for (const Video_In_Work& video : in_work)
        bytes += static_cast<double>(video.Bytes) * video.Percent / 100;
    return bytes;
}

/// Takes note of how much was worked through by now, and forgets what is older than a minute. Returns what stands
/// first.
static Worked_Sample Oldest_Of_Last_Minute(std::deque<Worked_Sample>& samples, const Worked_Sample& now)
{
    constexpr qint64 minute = 60'000;
    constexpr qint64 between = 1000;
    if (samples.empty() || now.Milliseconds - samples.back().Milliseconds >= between)
        samples.push_back(now);
    while (samples.front().Milliseconds < now.Milliseconds - minute)
        samples.pop_front();
    return samples.front();
}

/// Seconds; 0: not known yet. What failed or was left alone says nothing about the speed, and is left no more. One
/// video is like the next on its way; of several at once now these are at work and now those.
static qint64 Seconds_Left(Run_Tally& tally, qint64 age, bool several)
{
    const double in_work = Bytes_Done_Of(tally.In_Work);
    const Worked_Sample now{.Milliseconds = age, .Bytes = static_cast<double>(tally.Counts.Bytes) + in_work};
    const Worked_Sample since = several ? Oldest_Of_Last_Minute(tally.Last_Minute, now) : Worked_Sample();
    if (age < Before_First_Guess)
        return 0;
    const double worked = now.Bytes - since.Bytes;
    const double left = static_cast<double>(tally.Bytes_In_All - tally.Bytes_Past) - in_work;
    const double seconds = static_cast<double>(age - since.Milliseconds) / 1000;
    return worked > 0 && left > 0 ? std::llround(seconds * left / worked) : 0;
}

static Summary_Look Look_Of(const Outcome_Counts& counts)
{
    return counts.Failed > 0     ? Summary_Look::Failures
           : counts.Warnings > 0 ? Summary_Look::Warnings
                                 : Summary_Look::Plain;
}

void Show_Running_Summary(Program& program)
{
    Run_Tally& tally = program.Run.Tally;
    QStringList parts;
    if (tally.Index > 0)
        parts += u"%1 of %2"_s.arg(tally.Index).arg(std::max(tally.Index, tally.Files));
    if (program.Run.Halt_After_Video)
        parts += tally.In_Work.size() > 1 ? u"stops after the videos in work"_s : u"stops after this video"_s;
    else if (const qint64 seconds = Seconds_Left(tally, Age_Of_Run(program), program.Run.At_Once > 1); seconds > 0)
        parts += Time_Text(seconds) + u" left"_s;
    if (tally.Counts.Warnings > 0)
        parts += u"%1 with warnings"_s.arg(tally.Counts.Warnings);
    if (tally.Counts.Failed > 0)
        parts += u"%1 failed"_s.arg(tally.Counts.Failed);
    program.Form.lbl_RunSummary.Caption = parts.join(u" \u00B7 "_s);
    program.Form.Summary = Look_Of(tally.Counts);
}

void Show_Last_Summary(Program& program)
{
    const Run_Tally& tally = program.Run.Tally;
    if (tally.Files == 0 && tally.Index == 0)
        return;
    program.Form.lbl_RunSummary.Caption = Summary_Of(tally.Counts, Age_Of_Run(program));
    program.Form.Summary = Look_Of(tally.Counts);
}

void Tell_At_The_End(Program& program)
{
    const Main_Form& form = program.Form;
    if (!program.Settings.Extensions.Tell_At_The_End || form.Asked_To_Go || !Is_Long_Run(program))
        return;
    program.Person.Tell_If_Away(u"Vantorra: "_s + form.lbl_ProgressFinished.Caption,
                                form.lbl_RunSummary.Caption + u'\n' + Printable(program.Options.Path_Videos));
}

QString Window_Title(const Program& program)
{
    const Main_Form& form = program.Form;
    QString title = Preset_Title(program);
    title += (title.isEmpty() ? u""_s : u" - "_s) + form.Caption;
    if (!program.Run.Run_In_Progress || program.Run.Checking)
        return title;
    return u"%1% - "_s.arg(static_cast<int>(std::nearbyint(form.Progress_Fraction * 100))) + title;
}
