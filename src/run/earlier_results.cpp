#include "run/earlier_results.h"

#include "rules/video_list.h"
#include "run/journal.h"
#include "run/journal_results.h"
#include "run/run_folders.h"
#include "state/program.h"
#include "support/paths.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

/// What stands beside a result that isn't of this run.
static const QString Earlier_Run = QStringLiteral("in an earlier run");

void Sample_Options(Program& program, const QStringList& names)
{
    const auto on = [](const Check_Box& box) { return box.Enabled && box.Value == 1; };
    program.Run.Strip_Audio_Titles = on(program.Options.chk_StripOrigAudioTitle);
    program.Run.Strip_Subtitle_Titles = on(program.Options.chk_StripOrigSubsTitle);
    program.Run.Add_Attachments_On = on(program.Options.chk_AddAttachments);
    program.Run.Sensible_Bases.clear();
    if (program.Settings.Extensions.Sensible_Names_And_Sizes)
        for (const QString& name : names)
            program.Run.Sensible_Bases += Get_Base_Name(name).toLower();
}

/// A row that had its result in an earlier run shows it, as long as nothing else is known of it.
static void Show_Earlier_Result(Video_List& list, int number, Video_State state, const Journal_Entry& entry)
{
    Video_Row& row = list.Rows[static_cast<std::size_t>(number)];
    row.State = state;
    row.Output = entry.Outputs.value(0);
    row.Reason = state == Video_State::Failed && !entry.Reason.isEmpty() ? entry.Reason : Earlier_Run;
    row.From_Journal = true;
    Touch(list, number);
}

/// What an earlier look has shown counts no more.
static void Forget_Earlier_Result(Video_List& list, int number)
{
    Video_Row& row = list.Rows[static_cast<std::size_t>(number)];
    if (!row.From_Journal)
        return;
    row.State = Video_State::Waiting;
    row.Output.clear();
    row.Reason.clear();
    row.From_Journal = false;
    Touch(list, number);
}

void Look_Into_Journal(Program& program)
{
    Video_List& list = program.Videos;
    list.Failed_Before = 0;
    list.Left_Over = 0;
    list.Recount_Journal = false;
    list.Options_Seen = Options_Text(program);
    const bool careful = program.Settings.Extensions.Careful_Batch && !list.Rows.empty();
    const Journal_Results results = careful ? Read_Journal(program.Settings.App_Folder) : Journal_Results();
    QStringList names;
    for (const Video_Row& row : list.Rows)
        names += row.Path();
    Sample_Options(program, names);
    // What belongs to a video is looked for where its own folder's walk would.
    const Run_Folders root = Folders_Of(program.Options);
    const auto restored = qScopeGuard([&] {
        Use_Folders(root, program.Options);
        program.Run.Options_In_Force.clear();
    });
    program.Run.Options_In_Force = list.Options_Seen;
    QString sub;
    Known_Listings listed;
    int done = 0;
    int never_ended = 0;
    for (int number = 0; number < static_cast<int>(list.Rows.size()); ++number) {
        Forget_Earlier_Result(list, number);
        const Video_Row& row = list.Rows[static_cast<std::size_t>(number)];
        const QString source = list.Folder + row.Path();
        const auto known = results.constFind(source);
        if (sub != row.Sub_Path) {
            sub = row.Sub_Path;
            Use_Folders(sub.isEmpty() ? root : Folders_Below(root, sub), program.Options);
            program.Run.Options_In_Force = Options_Text(program);
        }
        const bool failed = known != results.constEnd() && known->Status == "failed"_L1;
        const bool is_done = known != results.constEnd() && known->Status == "done"_L1 &&
                             Is_Done_Before(results, source, Hash_Of_Video(program, source, listed));
        if (row.State == Video_State::Waiting && is_done)
            Show_Earlier_Result(list, number, known->Warnings.isEmpty() ? Video_State::Done : Video_State::Warning,
                                *known);
        else if (row.State == Video_State::Waiting && failed)
            Show_Earlier_Result(list, number, Video_State::Failed, *known);
        if (!row.Ticked)
            continue;
        // A source that went to the trash is done, whatever the journal says of it now.
        done += is_done || Has_Output(row) ? 1 : 0;
        list.Failed_Before += failed ? 1 : 0;
        list.Left_Over += is_done || Has_Output(row) ? 0 : 1;
        never_ended += is_done || Has_Output(row) || failed ? 0 : 1;
    }
    // With nothing done yet it would be Run, and where only failures are left there is a button for these.
    if (done == 0 || never_ended == 0)
        list.Left_Over = 0;
}
