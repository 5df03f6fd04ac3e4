#include "headless/batch_report.h"

#include "headless/batch_options.h"
#include "headless/check_report.h"
#include "headless/json_report.h"
#include "headless/plain_report.h"
#include "headless/print.h"
#include "run/check_facts.h"
#include "run/run_summary.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/shown_text.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <utility>

using namespace Qt::StringLiterals;

std::unique_ptr<Batch_Report> Batch_Report::Make(const Batch_Options& options, std::FILE* out, std::FILE* err)
{
    if (options.Json)
        return std::make_unique<Json_Report>(options.Check, out, err);
    if (options.Check)
        return std::make_unique<Check_Report>(out, err);
    return std::make_unique<Plain_Report>(options.Quiet, out, err);
}

void Batch_Report::Complain(const QString& line)
{
    Print_Text(err_, u"vantorra-batch: "_s + Printable(line.simplified()) + u'\n');
}

void Batch_Report::Show_Message(const Message_Box& box)
{
    const QString file = source_.isEmpty() || box.Text.contains(source_) ? QString() : u" ["_s + source_ + u']';
    const QString number = box.Code == 0 ? QString() : u"#%1 "_s.arg(box.Code);
    // Nobody clicks here.
    static const QRegularExpression click(u"\r\n(\r\n)*Click OK to [^\r\n]*"_s);
    const QString text = QString(box.Text).remove(click);
    const QString line = number + box.Title + u' ' + text + file;
    if (source_.isEmpty() || number.isEmpty()) {
        Complain(line);
    } else {
        boxes_ += line;
        numbers_ += number.trimmed();
    }
    Tell(box.Code, box.Title, text);
}

void Batch_Report::Warn(const QString& title, const QString& text)
{
    Complain(u"warning: "_s + text);
    warned_ += text;
    Tell(0, title, text);
}

void Batch_Report::Explain(const QString& text)
{
    if (!text.isEmpty())
        Complain(text);
}

void Batch_Report::Say_Boxes()
{
    for (const QString& line : std::exchange(boxes_, {}))
        Complain(line);
    numbers_.clear();
}

void Batch_Report::Show_Error(const Run_Time_Error& error)
{
    Say_Boxes();
    const QString text = error.Message();
    const qsizetype end = text.indexOf(u'\n');
    Complain(text);
    Tell(0, text.left(end).trimmed(), text);
}

void Batch_Report::Run_Started(int)
{
    clock_.start();
}

void Batch_Report::File_Started(int, const QString& source)
{
    source_ = source;
    // Now: it may be in the trash when it is done.
    in_work_.insert(source, {.Bytes = QFileInfo(source).size(), .Percent = 0});
}

void Batch_Report::Progress(const QString& source, int percent, int)
{
    in_work_[source].Percent = percent;
}

double Batch_Report::Bytes_Done() const
{
    return static_cast<double>(counts_.Bytes) + Bytes_Done_Of(in_work_);
}

void Batch_Report::Warned(const QString& title, const QString& text)
{
    Warn(title, text);
}

/// A warning about a habit of the classic run without what differs from video to video; empty for any other.
static QString Habit_Of(const QString& warning)
{
    const QString key = u"\"Sensible Names And Sizes\""_s;
    static const QRegularExpression quoted(u"\"[^\"]*\""_s);
    return warning.contains(key) ? QString(warning).remove(quoted) : QString();
}

/// What is said about a video on standard error, a line each: its reason and its warnings. What was never run has one
/// reason for all of them, and a habit is told once in a batch.
void Batch_Report::Say_Reasons(const File_Outcome& outcome)
{
    const QString name = outcome.Name();
    const auto say = [&](const QString& line, const QString& text) {
        reasons_ += line;
        if (!warned_.contains(text))
            Complain(line);
    };
    const bool failed = outcome.Status == File_Outcome::Kind::Failed;
    if (!outcome.Reason.isEmpty() && (failed || outcome.Status == File_Outcome::Kind::Skipped)) {
        boxes_.clear(); // the reason says it better
        const QString numbers = numbers_.isEmpty() ? QString() : u" ("_s + numbers_.join(u", "_s) + u')';
        say(name + (failed ? u" failed: "_s : u" skipped: "_s) + outcome.Reason + numbers, outcome.Reason);
    }
    Say_Boxes();
    for (const QString& warning : outcome.Warnings) {
        const QString habit = Habit_Of(warning);
        if (!habit.isEmpty() && habits_told_.contains(habit))
            continue;
        say(u"warning: "_s + name + u": "_s + warning, warning);
        if (!habit.isEmpty())
            habits_told_ += habit;
    }
}

void Batch_Report::File_Finished(const File_Outcome& outcome)
{
    Count_Outcome(outcome, in_work_.take(outcome.Source).Bytes, counts_);
    if (program_->Run.Dry_Run && !Problems_Of(outcome).isEmpty())
        ++counts_.Problems;
    Say_Reasons(outcome);
    source_.clear();
    warned_.clear();
    Say_Boxes();
}

void Batch_Report::Done_Before(int files, const QStringList& with_warnings)
{
    QString text = u"%1 done before"_s.arg(files);
    if (!with_warnings.isEmpty())
        text += u", %1 of them with warnings: "_s.arg(with_warnings.size()) + with_warnings.join(u", "_s);
    Complain(text);
    Tell(0, u"Done before"_s, text);
}

void Batch_Report::Refused(const QString& reason)
{
    Complain(reason);
    Tell(0, u"Refused"_s, reason);
}
