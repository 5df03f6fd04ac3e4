#include "run/video_list_watch.h"

#include "rules/video_list.h"
#include "run/check_facts.h"
#include "run/run_summary.h"
#include "state/program.h"
#include "support/file_identity.h"

#include <utility>

using namespace Qt::StringLiterals;

int Video_List_Watch::Number_Of(const QString& source) const
{
    Video_List& list = program_.Videos;
    return Row_Number(list, source.startsWith(list.Folder) ? source.sliced(list.Folder.size()) : source);
}

Video_Row& Video_List_Watch::Row(int number) const
{
    return program_.Videos.Rows[static_cast<std::size_t>(number)];
}

void Video_List_Watch::Refused(const QString& reason)
{
    program_.Videos.Notes += reason;
}

/// What was known of a row's last run goes; what a check has found out stays until it is found out anew.
static void Wait_Anew(Video_List& list, int number)
{
    Video_Row& row = list.Rows[static_cast<std::size_t>(number)];
    row.State = Video_State::Waiting;
    row.Percent = 0;
    row.Problems.clear();
    row.Forecast.clear();
    row.Output.clear();
    row.Reason.clear();
    row.Warnings.clear();
    row.Seconds_Taken = 0;
    row.From_Journal = false;
    Touch(list, number);
}

void Video_List_Watch::Run_Started(int files)
{
    if (program_.Run.Checking)
        return;
    Tally_Run_Started(program_, files);
    // A careful batch tells which ones it takes.
    if (program_.Run.Careful)
        return;
    for (int number = 0; number < static_cast<int>(program_.Videos.Rows.size()); ++number)
        Wait_Anew(program_.Videos, number);
}

void Video_List_Watch::Videos_Chosen(const QStringList& sources)
{
    if (program_.Run.Checking)
        return;
    Tally_Sources(program_.Run.Tally, sources);
    for (const QString& source : sources)
        Wait_Anew(program_.Videos, Number_Of(source));
}

void Video_List_Watch::File_Started(int index, const QString& source)
{
    if (!program_.Run.Checking)
        Tally_File_Started(program_, index, source);
    const int number = Number_Of(source);
    Video_Row& row = Row(number);
    if (program_.Run.Checking)
        before_check_.insert(number, row.State);
    row.State = Video_State::Working;
    row.Percent = program_.Run.Checking ? -1 : 0;
    program_.Videos.In_Work = number;
    Touch(program_.Videos, number);
}

void Video_List_Watch::Command_Ready(const Program& video, const QString& source, const QString& output)
{
    const int number = Number_Of(source);
    const Command_Line& command = video.Run.Mkvmerge_Arguments;
    Check_Facts facts = Check_Facts_Of(video, command);
    Video_Row& row = Row(number);
    row.Length = facts.Length;
    if (const auto file = Identity_Of(source))
        row.Bytes = file->Size;
    row.Keeps = std::move(facts.Keeps);
    row.Kept_Tracks = std::move(facts.Tracks);
    row.Adds = std::move(facts.Adds);
    row.Added_Files = std::move(facts.Hints);
    row.Languages_Known = true;
    row.Audio_Languages = video.Media.Audio_Languages;
    row.Subtitle_Languages = video.Media.Subtitle_Languages;
    row.Command = QStringList{program_.Tools.System_MKVMerge_Path} + command.Arguments();
    row.Output = output;
    Touch(program_.Videos, number);
}

void Video_List_Watch::Progress(const QString& source, int percent, int)
{
    Tally_Progress(program_, source, percent);
    Set_Percent(program_.Videos, Number_Of(source), percent);
}

void Video_List_Watch::Warned(const QString&, const QString& text)
{
    program_.Videos.Notes += text;
}

static Video_State State_Of(const File_Outcome& outcome)
{
    switch (outcome.Status) {
    case File_Outcome::Kind::Done:
        return outcome.Warnings.isEmpty() ? Video_State::Done : Video_State::Warning;
    case File_Outcome::Kind::Failed:
        return Video_State::Failed;
    case File_Outcome::Kind::Skipped:
        return Video_State::Skipped;
    case File_Outcome::Kind::Not_Run:
        break;
    }
    return Video_State::Not_Run;
}

void Video_List_Watch::Take_In_Check(int number, const File_Outcome& outcome)
{
    Video_Row& row = Row(number);
    const bool had_its_turn = before_check_.contains(number);
    if (had_its_turn)
        row.State = before_check_.take(number);
    // One that the halt reached is as it was.
    if (had_its_turn && !program_.Run.Halt_Requested) {
        row.Problems = Problems_Of(outcome);
        row.Forecast = outcome.Status == File_Outcome::Kind::Skipped ? u"would be skipped: "_s + outcome.Reason
                       : outcome.Replaces.isEmpty()                  ? QString()
                                                                     : u"replaces "_s + outcome.Replaces.join(u", "_s);
    }
    row.Percent = 0;
}

void Video_List_Watch::Take_Result(int number, const File_Outcome& outcome) const
{
    Video_Row& row = Row(number);
    row.State = State_Of(outcome);
    row.Percent = 0;
    row.Output = outcome.Status == File_Outcome::Kind::Done ? outcome.Output : QString();
    row.Pieces = outcome.Pieces.size();
    row.Reason = outcome.Reason;
    row.Warnings = outcome.Warnings;
    row.Seconds_Taken = outcome.Seconds;
}

void Video_List_Watch::File_Finished(const File_Outcome& outcome)
{
    const int number = Number_Of(outcome.Source);
    if (program_.Run.Checking)
        Take_In_Check(number, outcome);
    else
        Take_Result(number, outcome);
    if (!program_.Run.Checking)
        Tally_File_Finished(program_, outcome);
    if (program_.Videos.In_Work == number)
        program_.Videos.In_Work = -1;
    Touch(program_.Videos, number);
}
