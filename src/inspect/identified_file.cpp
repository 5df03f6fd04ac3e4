#include "inspect/identified_file.h"

#include "inspect/json_value.h"
#include "state/program.h"
#include "support/platform_names.h"
#include "tools/ask_tool.h"

using namespace Qt::StringLiterals;

static std::optional<std::uint64_t> Whole_Number(const Tool_Json& value)
{
    return value.is_number_unsigned() ? std::optional(value.get<std::uint64_t>()) : std::nullopt;
}

static Identified_Track Track_Of(const Tool_Json& track)
{
    const Tool_Json& properties = Json_Member(track, "properties");
    const auto text = [&properties](const char* key) { return Json_Text(Json_Member(properties, key)); };
    const auto is_set = [&properties](const char* key) { return Json_Member(properties, key) == Tool_Json(true); };
    return {.Id = static_cast<int>(Whole_Number(Json_Member(track, "id")).value_or(0)),
            .Type = Json_Text(Json_Member(track, "type")),
            .Codec = Json_Text(Json_Member(track, "codec")),
            .Number = Whole_Number(Json_Member(properties, "number")),
            .Name = text("track_name"),
            .Language = text("language"),
            .Language_Tag = text("language_ietf"),
            .Display_Size = text("display_dimensions"),
            .Default = is_set("default_track"),
            .Forced = is_set("forced_track")};
}

/// The tracks that have tags say so beside the tracks.
static void Take_Track_Tags(const Tool_Json& all, std::vector<Identified_Track>& tracks)
{
    for (const Tool_Json& tags : Json_Member(all, "track_tags"))
        for (Identified_Track& track : tracks)
            if (Json_Member(tags, "track_id") == Tool_Json(track.Id))
                track.Has_Tags = true;
}

std::optional<Identified_File> Parse_Identification(const QByteArray& json)
{
    const Tool_Json value = Parse_Tool_Json(json);
    if (!value.is_object())
        return std::nullopt;
    Identified_File file;
    const Tool_Json& container = Json_Member(value, "container");
    file.Readable = Json_Member(container, "recognized") == Tool_Json(true) &&
                    Json_Member(container, "supported") == Tool_Json(true);
    file.Container = Json_Text(Json_Member(container, "type"));
    for (const Tool_Json& track : Json_Member(value, "tracks"))
        file.Tracks.push_back(Track_Of(track));
    Take_Track_Tags(value, file.Tracks);
    file.Title = Json_Text(Json_Member(Json_Member(container, "properties"), "title"));
    for (const Tool_Json& attachment : Json_Member(value, "attachments"))
        file.Attachments += u"%1, %2 bytes"_s.arg(Json_Text(Json_Member(attachment, "file_name")),
                                                  Json_Text(Json_Member(attachment, "size")));
    for (const Tool_Json& chapters : Json_Member(value, "chapters"))
        file.Chapters += static_cast<int>(Whole_Number(Json_Member(chapters, "num_entries")).value_or(0));
    return file;
}

static Command_Line Question_About(const QString& path)
{
    Command_Line command;
    command.Add_Option(u" --ui-language "_s, Tool_Language());
    command.Add_Options(u" --identification-format json"_s);
    command.Add_Path(u" --identify "_s, path);
    return command;
}

static std::optional<Identified_File> Understand(const Tool_Answer& answer, QString& why_not)
{
    // It ends with 2 for a file that it can't open, and its messages are in its answer then.
    if (!answer.Ended_Well(1)) {
        const Tool_Json value = Parse_Tool_Json(answer.Output);
        const Tool_Json& errors = Json_Member(value, "errors");
        const QString said =
            errors.is_array() && !errors.empty() ? First_Line(Json_Text(errors.front()).toUtf8()) : QString();
        why_not = said.isEmpty() ? answer.Why_Not(u"mkvmerge"_s) : u"mkvmerge: "_s + said;
        return std::nullopt;
    }
    std::optional<Identified_File> file = Parse_Identification(answer.Output);
    if (!file)
        why_not = u"mkvmerge's identification can't be read: "_s + First_Line(answer.Output);
    return file;
}

std::optional<Identified_File> Identify_Tracks(Program& program, const QString& path, QString& why_not)
{
    return Understand(Ask_Tool(program, program.Tools.System_MKVMerge_Path, Question_About(path)), why_not);
}

std::vector<Identification> Identify_Each(Program& program, const QStringList& paths)
{
    std::vector<Command_Line> questions;
    for (const QString& path : paths)
        questions.push_back(Question_About(path));
    std::vector<Identification> identifications;
    for (const Tool_Answer& answer : Ask_Tool_Of_Each(program, program.Tools.System_MKVMerge_Path, questions)) {
        Identification& each = identifications.emplace_back();
        each.File = Understand(answer, each.Why_Not);
    }
    return identifications;
}
