#include "headless/json_report.h"

#include "headless/print.h"
#include "state/program.h"
#include "support/shown_text.h"

#include <cmath>
#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;
using Json = nlohmann::ordered_json;

static std::string Text(const QString& text)
{
    return Bytes_Shown(text).toStdString();
}

static Json Texts(const QStringList& texts)
{
    Json array = Json::array();
    for (const QString& text : texts)
        array.push_back(Text(text));
    return array;
}

void Json_Report::Run_Started(int files)
{
    Batch_Report::Run_Started(files);
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

void Json_Report::Command_Ready(const Program& video, const QString& source, const QString& output)
{
    const Command_Line& command = video.Run.Mkvmerge_Arguments;
    if (check_)
        facts_ = Check_Facts_Of(video, command);
    Print_Json(Out(), {{"event", "command"},
                       {"source", Text(source)},
                       {"output", Text(output)},
                       {"text", Text(command.Text())},
                       {"arguments", Texts(command.Arguments())}});
}

void Json_Report::Progress(const QString& source, int percent, int overall)
{
    Print_Json(Out(), {{"event", "progress"}, {"source", Text(source)}, {"percent", percent}, {"overall", overall}});
}

void Json_Report::Tell(int code, const QString& title, const QString& text)
{
    Print_Json(Out(), {{"event", "message"}, {"code", code}, {"title", Text(title)}, {"text", Text(text)}});
}

static const char* Status_Word(File_Outcome::Kind status)
{
    switch (status) {
    case File_Outcome::Kind::Done:
        return "done";
    case File_Outcome::Kind::Failed:
        return "failed";
    case File_Outcome::Kind::Skipped:
        return "skipped";
    case File_Outcome::Kind::Not_Run:
        return "not run";
    }
    return "";
}

void Json_Report::Print_Check(const File_Outcome& outcome)
{
    Print_Json(Out(), {{"event", "check"},
                       {"source", Text(outcome.Source)},
                       {"output", Text(outcome.Output)},
                       {"tracks", Texts(facts_.Tracks)},
                       {"added", Texts(facts_.Added)},
                       {"chapters", Text(facts_.Chapters)},
                       {"problems", Texts(Problems_Of(outcome))},
                       {"replaces", Texts(outcome.Replaces)}});
}

void Json_Report::File_Finished(const File_Outcome& outcome)
{
    if (check_)
        Print_Check(outcome);
    facts_ = {};
    Batch_Report::File_Finished(outcome);
    Json result{{"event", "result"},
                {"source", Text(outcome.Source)},
                {"output", Text(outcome.Output)},
                {"status", Status_Word(outcome.Status)},
                {"exit", outcome.Exit},
                {"seconds", std::round(outcome.Seconds * 1000) / 1000},
                {"reason", Text(outcome.Reason)},
                {"warnings", Texts(outcome.Warnings)}};
    if (!outcome.Pieces.isEmpty())
        result["pieces"] = Texts(outcome.Pieces);
    Print_Json(Out(), result);
}

void Json_Report::Ended(Batch_End end, int exit)
{
    const char* const status = end == Batch_End::Finished      ? "finished"
                               : end == Batch_End::Interrupted ? "interrupted"
                               : end == Batch_End::Refused     ? "refused"
                                                               : "error";
    const Outcome_Counts& counts = Counts();
    Print_Json(Out(), {{"event", "finished"},
                       {"status", status},
                       {"done", counts.Done},
                       {"warnings", counts.Warnings},
                       {"failed", counts.Failed},
                       {"skipped", counts.Skipped},
                       {"not_run", counts.Not_Run},
                       {"exit", exit}});
}
