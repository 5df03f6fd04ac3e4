#include "headless/batch_program.h"

#include "headless/bad_usage.h"
#include "headless/batch_options.h"
#include "headless/batch_report.h"
#include "headless/box_clicks.h"
#include "headless/exit_status.h"
#include "headless/headless_operator.h"
#include "inspect/tool_discovery.h"
#include "logs/last_entry.h"
#include "program.h"
#include "run/run_driver.h"
#include "support/paths.h"
#include "support/run_time_error.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

static void Print_Line(std::FILE* stream, const QString& text)
{
    std::fputs(text.toUtf8().constData(), stream);
    if (!text.endsWith(u'\n'))
        std::fputc('\n', stream);
}

/// What the command line changes on a program that has read its settings.
static void Apply_Options(Program& program, const Batch_Options& options)
{
    if (!options.Videos.isEmpty())
        program.Options.Path_Videos = options.Videos;
    if (!options.Target.isEmpty())
        program.Options.Path_Target = options.Target;
    program.Form.Options_Ready = true;
    Click_Boxes(program, options.Clicks);
}

static int Run_The_Batch(Program& program, Batch_Report& report)
{
    const Press_Result result = btn_RunVantorra_MouseUp(program, {});
    switch (result) {
    case Press_Result::Interrupted:
        report.Ended(Batch_End::Interrupted, Exit_Halted);
        return Exit_Halted;
    case Press_Result::Finished: {
        const int exit = report.Failed() > 0 ? Exit_Some_Failed : Exit_Finished;
        report.Ended(Batch_End::Finished, exit);
        return exit;
    }
    default:
        report.Ended(Batch_End::Refused, Exit_Refused);
        return Exit_Refused;
    }
}

static int Run_Command(Program& program, const Batch_Options& options, Batch_Report& report)
{
    const QString home = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/vantorra"_s;
    program.Settings.App_Folder = With_Separator(options.App_Folder.isEmpty() ? home : options.App_Folder);
    QDir().mkpath(program.Settings.App_Folder);
    program.Settings.Version_Banner = QStringLiteral("Vantorra ver " VANTORRA_VERSION);
    Discover_Tools(program);
    Apply_Options(program, options);
    return Run_The_Batch(program, report);
}

int Run_Batch_Program(const QStringList& arguments, std::FILE* out, std::FILE* err,
                      const std::function<bool()>& stop_requested)
{
    const Batch_Line line = Parse_Batch_Line(arguments);
    if (!line.Options) {
        const bool wrong = line.Text.isEmpty();
        Print_Line(wrong ? err : out, wrong ? u"vantorra-batch: %1 (--help lists all)"_s.arg(line.Mistake) : line.Text);
        return wrong ? Exit_Bad_Usage : Exit_Finished;
    }

    const std::unique_ptr<Batch_Report> report = Batch_Report::Make(*line.Options, out, err);
    Headless_Operator person(*report, stop_requested);
    Program program(person);
    person.Watch_Over(program);
    report->Watch_Over(program);
    program.Listener = report.get();
    program.Run.Kill_By_Name = false;
    program.Run.Dry_Run = line.Options->Dry_Run;
    // The one place where run-time errors end.
    try {
        Check_Box_Names(line.Options->Clicks);
        return Run_Command(program, *line.Options, *report);
    } catch (const Bad_Usage& mistake) {
        Print_Line(err, u"vantorra-batch: "_s + mistake.Text);
        return Exit_Bad_Usage;
    } catch (const Run_Time_Error& error) {
        report->Show_Error(error);
        Write_Last_Entry(program);
        report->Ended(Batch_End::Error, Exit_Run_Time_Error);
        return Exit_Run_Time_Error;
    }
}
