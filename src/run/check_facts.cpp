#include "run/check_facts.h"

#include "inspect/output_check.h"
#include "state/program.h"
#include "state/run_listener.h"
#include "support/paths.h"

using namespace Qt::StringLiterals;

static QStringList Kept_Tracks(const FileInfoList& streams)
{
    QStringList tracks;
    for (const FileInfo& stream : streams)
        if (stream.StreamType == "video"_L1 || stream.StreamType == "audio"_L1 || stream.StreamType == "subtitle"_L1)
            tracks += QStringList{stream.Index, stream.StreamType, stream.CodecName, stream.Language}.join(u' ');
    return tracks;
}

Check_Facts Check_Facts_Of(const Program& program, const Command_Line& command)
{
    const Asked_Output asked = Asked_Of(command, program.Media.FileInfoList);
    Check_Facts facts{.Tracks = Kept_Tracks(program.Media.FileInfoList), .Added = {}, .Chapters = u"kept"_s};
    for (std::size_t i = 1; i < asked.Inputs.size(); ++i)
        facts.Added += File_Name_Of(asked.Inputs[i].Path);
    for (const QString& path : asked.Attached)
        facts.Added += File_Name_Of(path);
    if (asked.Has_Chapter_File)
        facts.Chapters = File_Name_Of(program.Companions.Chapter_File);
    else if (!asked.Inputs.empty() && asked.Inputs.front().No_Chapters)
        facts.Chapters = u"removed"_s;
    return facts;
}

QStringList Problems_Of(const File_Outcome& outcome)
{
    QStringList problems;
    if (outcome.Status == File_Outcome::Kind::Failed)
        problems += outcome.Reason.isEmpty() ? u"it can't be processed"_s : outcome.Reason;
    else if (outcome.Status == File_Outcome::Kind::Not_Run && outcome.Replaces.isEmpty() && File_Exists(outcome.Output))
        problems += u"the output exists already and would be overwritten"_s;
    return problems + outcome.Warnings;
}
