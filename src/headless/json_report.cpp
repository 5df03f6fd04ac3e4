#include "headless/json_report.h"

#include "headless/print.h"
#include "state/program.h"

#include <cmath>
#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;
using Json = nlohmann::ordered_json;

static std::string Text(const QString& text)
{
    return text.toStdString();
}

void Json_Report::Run_Started(int files)
{
    Print_Json(Out(), {{"event", "run"},
                       {"videos", Text(Watched().Options.Path_Videos)},
                       {"target", Text(Watched().Options.Path_Target)},
                       {"files", files},
                       {"version", VANTORRA_VERSION}});
}

void Json_Report::File_Started(int index, const QString& source)
{
    Batch_Report::File_Started(index, source);
    Print_Json(Out(), {{"event", "file"}, {"index", index}, {"source", Text(source)}});
}

void Json_Report::Command_Ready(const QString& source, const QString& output, const Command_Line& command)
{
    Batch_Report::Command_Ready(source, output, command);
    Json arguments = Json::array();
    for (const QString& argument : command.Arguments())
        arguments.push_back(Text(argument));
    Print_Json(Out(), {{"event", "command"},
                       {"source", Text(source)},
                       {"output", Text(output)},
                       {"text", Text(command.Text())},
                       {"arguments", std::move(arguments)}});
}

void Json_Report::Progress(int percent, int overall)
{
    Print_Json(Out(),
               {{"event", "progress"}, {"source", Text(Source_In_Work())}, {"percent", percent}, {"overall", overall}});
}

void Json_Report::Tell(int code, const QString& title, const QString& text)
{
    Print_Json(Out(), {{"event", "message"}, {"code", code}, {"title", Text(title)}, {"text", Text(text)}});
}

void Json_Report::File_Finished(const File_Outcome& outcome)
{
    Batch_Report::File_Finished(outcome);
    const char* const status = outcome.Status == File_Outcome::Kind::Done     ? "done"
                               : outcome.Status == File_Outcome::Kind::Failed ? "failed"
                                                                              : "skipped";
    Print_Json(Out(), {{"event", "result"},
                       {"source", Text(outcome.Source)},
                       {"output", Text(outcome.Output)},
                       {"status", status},
                       {"exit", outcome.Exit},
                       {"seconds", std::round(outcome.Seconds * 1000) / 1000}});
}

void Json_Report::Ended(Batch_End end, int exit)
{
    const char* const status = end == Batch_End::Finished      ? "finished"
                               : end == Batch_End::Interrupted ? "interrupted"
                               : end == Batch_End::Refused     ? "refused"
                                                               : "error";
    Print_Json(Out(),
               {{"event", "finished"}, {"status", status}, {"done", Done()}, {"failed", Failed()}, {"exit", exit}});
}
