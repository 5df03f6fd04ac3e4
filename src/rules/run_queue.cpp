#include "rules/run_queue.h"

#include "rules/folder_changes.h"
#include "rules/video_list.h"
#include "state/program.h"
#include "support/drop_data.h"
#include "support/paths.h"
#include "support/shown_text.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

/// Why a folder isn't queued; empty: it can be.
static QString Why_Not_Queued(const Program& program, const QString& folder)
{
    const std::vector<Queued_Run>& runs = program.Queue.Runs;
    const auto is_folder = [&folder](const QString& other) { return folder.compare(other, Case_Of_Names) == 0; };
    if (is_folder(program.Options.Path_Videos))
        return u"That folder is in work."_s;
    if (is_folder(program.Options.Path_Target))
        return u"That folder is the target."_s;
    if (std::any_of(runs.begin(), runs.end(), [&](const Queued_Run& queued) { return is_folder(queued.Folder); }))
        return u"That folder is to be run next already."_s;
    return {};
}

void Drop_In_Run(Program& program, const Drop_Data& data)
{
    QStringList words;
    QStringList& asked = program.Queue.Asked;
    for (const QString& path : data.Paths) {
        if (!Folder_Exists(path))
            continue;
        const QString folder = With_Separator(path);
        if (const QString why = Why_Not_Queued(program, folder); !why.isEmpty())
            words += why;
        else if (!asked.contains(folder))
            asked += folder;
    }
    if (words.isEmpty() && asked.isEmpty())
        words += u"While a run goes on a folder can be dropped here, to be run next."_s;
    words.removeDuplicates();
    program.Form.lbl_Notice.Caption = words.join(u' ');
}

QString Queue_Question(const Program& program)
{
    const QStringList& asked = program.Queue.Asked;
    if (asked.isEmpty())
        return {};
    QStringList lines;
    for (const QString& folder : asked)
        lines += As_One_Line(folder);
    return lines.join(u'\n') + (asked.size() == 1 ? u"\n\nRun it next"_s : u"\n\nRun them next"_s) +
           u", once this run has come to its end, with the options as they are?"_s;
}

void Answer_Queue_Question(Program& program, bool yes)
{
    const QStringList asked = std::exchange(program.Queue.Asked, {});
    if (!yes || !program.Run.Press_In_Work)
        return;
    for (const QString& folder : asked)
        program.Queue.Runs.push_back({.Folder = folder, .Videos = Videos_In_Folder(program, folder)});
}

void Remove_Queued(Program& program, int place)
{
    std::vector<Queued_Run>& runs = program.Queue.Runs;
    if (place >= 0 && place < static_cast<int>(runs.size()))
        runs.erase(runs.begin() + place);
}

QString Queued_Caption(const Queued_Run& queued)
{
    return u"Next: %1 (%2)"_s.arg(As_One_Line(queued.Folder),
                                  queued.Videos == 1 ? u"1 video"_s : u"%1 videos"_s.arg(queued.Videos));
}

static Queued_Run Take_First(Run_Queue& queue)
{
    Queued_Run first = std::move(queue.Runs.front());
    queue.Runs.erase(queue.Runs.begin());
    return first;
}

bool Take_Next_Queued(Program& program)
{
    QStringList notes;
    bool taken = false;
    while (!taken && !program.Queue.Runs.empty()) {
        const Queued_Run next = Take_First(program.Queue);
        taken = Videos_In_Folder(program, next.Folder) > 0;
        if (taken)
            Drop_On_Videos_Panel(program, {.Has_File_List = true, .Paths = {next.Folder}});
        else
            notes += u"Not run, as no video is in it: %1."_s.arg(As_One_Line(next.Folder));
    }
    if (taken)
        Follow_Videos_Folder(program);
    program.Videos.Notes += notes;
    return taken;
}

void Give_Up_Queue(Program& program)
{
    QStringList folders;
    for (const Queued_Run& queued : std::exchange(program.Queue.Runs, {}))
        folders += queued.Folder;
    for (const QString& folder : folders + std::exchange(program.Queue.Asked, {}))
        program.Videos.Notes += u"Not run: %1."_s.arg(As_One_Line(folder));
}
