#include "headless/batch_report.h"

#include "headless/batch_options.h"
#include "headless/json_report.h"
#include "headless/plain_report.h"
#include "headless/print.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/shown_text.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

std::unique_ptr<Batch_Report> Batch_Report::Make(const Batch_Options& options, std::FILE* out, std::FILE* err)
{
    if (options.Json)
        return std::make_unique<Json_Report>(out, err);
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
    Complain(number + box.Title + u' ' + text + file);
    Tell(box.Code, box.Title, text);
}

void Batch_Report::Warn(const QString& title, const QString& text)
{
    Complain(u"warning: "_s + text);
    Tell(0, title, text);
}

void Batch_Report::Explain(const QString& text)
{
    if (!text.isEmpty())
        Complain(text);
}

void Batch_Report::Show_Error(const Run_Time_Error& error)
{
    const QString text = error.Message();
    const qsizetype end = text.indexOf(u'\n');
    Complain(text);
    Tell(0, text.left(end).trimmed(), text);
}

void Batch_Report::File_Started(int, const QString& source)
{
    source_ = source;
}

void Batch_Report::Warned(const QString& title, const QString& text)
{
    warned_ += text;
    Warn(title, text);
}

void Batch_Report::File_Finished(const File_Outcome& outcome)
{
    switch (outcome.Status) {
    case File_Outcome::Kind::Done:
        ++(outcome.Warnings.isEmpty() ? counts_.Done : counts_.Warnings);
        break;
    case File_Outcome::Kind::Failed:
        ++counts_.Failed;
        break;
    case File_Outcome::Kind::Skipped:
        ++counts_.Skipped;
        break;
    case File_Outcome::Kind::Not_Run:
        ++counts_.Not_Run;
        break;
    }
    const QString name = File_Name_Of(outcome.Source);
    if (outcome.Status == File_Outcome::Kind::Failed && !outcome.Reason.isEmpty())
        Complain(name + u" failed: "_s + outcome.Reason);
    for (const QString& warning : outcome.Warnings)
        if (!warned_.contains(warning))
            Complain(u"warning: "_s + name + u": "_s + warning);
    warned_.clear();
    source_.clear();
}

void Batch_Report::Refused(const QString& reason)
{
    Complain(reason);
    Tell(0, u"Refused"_s, reason);
}
