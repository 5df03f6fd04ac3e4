#include "rules/video_list.h"

#include "inspect/subfolders.h"
#include "inspect/video_names.h"
#include "state/program.h"
#include "support/disk_steps.h"
#include "support/paths.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

Video_State Shown_State(const Video_Row& row, bool takes_ticks)
{
    return takes_ticks && !row.Ticked && row.State == Video_State::Waiting ? Video_State::Left_Out : row.State;
}

bool Has_Output(const Video_Row& row)
{
    return row.State == Video_State::Done || row.State == Video_State::Warning;
}

static Video_Row Row_Of_Path(const QString& path)
{
    const qsizetype name = path.lastIndexOf(Path_Separator) + 1;
    Video_Row row;
    row.Name = path.sliced(name);
    row.Sub_Path = path.first(name);
    return row;
}

/// Takes the rows over and numbers them anew.
static void Set_Rows(Video_List& list, std::vector<Video_Row> rows)
{
    QSet<QString> marked;
    for (const int number : list.Selected)
        marked.insert(list.Rows[static_cast<std::size_t>(number)].Path());
    list.Rows = std::move(rows);
    list.Selected.clear();
    list.Places.clear();
    list.Places.reserve(static_cast<qsizetype>(list.Rows.size()));
    for (int number = 0; number < static_cast<int>(list.Rows.size()); ++number) {
        const QString path = list.Rows[static_cast<std::size_t>(number)].Path();
        list.Places.insert(path, number);
        if (marked.contains(path))
            list.Selected.push_back(number);
    }
    list.In_Work = -1;
    list.Filled = ++list.Stamp;
}

void Fill_Videos(Video_List& list, const QString& folder, const QStringList& paths)
{
    std::vector<Video_Row> rows;
    rows.reserve(static_cast<std::size_t>(paths.size()));
    for (const QString& path : paths)
        rows.push_back(Row_Of_Path(path));
    list.Selected.clear();
    list.Notes.clear();
    list.Folder = folder;
    Set_Rows(list, std::move(rows));
}

bool Recount_Videos(Video_List& list, const QStringList& paths)
{
    const QSet<QString> there(paths.begin(), paths.end());
    std::vector<Video_Row> rows;
    rows.reserve(static_cast<std::size_t>(paths.size()));
    bool changed = false;
    int next = 0; // of the old rows
    // Both are in the same order, so that what is gone keeps its place among its neighbours.
    const auto pass_to = [&](int end) {
        for (; next < end; ++next) {
            Video_Row& old = list.Rows[static_cast<std::size_t>(next)];
            if (!there.contains(old.Path()) && Has_Output(old))
                rows.push_back(old);
            else
                changed = true;
        }
    };
    for (const QString& path : paths) {
        const int known = list.Places.value(path, -1);
        if (known >= next) {
            pass_to(known);
            rows.push_back(list.Rows[static_cast<std::size_t>(known)]);
            ++next;
        } else {
            rows.push_back(known < 0 ? Row_Of_Path(path) : list.Rows[static_cast<std::size_t>(known)]);
            changed = true;
        }
    }
    pass_to(static_cast<int>(list.Rows.size()));
    if (changed)
        Set_Rows(list, std::move(rows));
    return changed;
}

void Touch(Video_List& list, int number)
{
    list.Rows[static_cast<std::size_t>(number)].Stamp = list.Turned = ++list.Stamp;
}

void Set_Percent(Video_List& list, int number, int percent)
{
    Video_Row& row = list.Rows[static_cast<std::size_t>(number)];
    if (row.Percent == percent)
        return;
    row.Percent = percent;
    row.Stamp = ++list.Stamp;
}

int Row_Number(Video_List& list, const QString& path)
{
    if (const auto known = list.Places.constFind(path); known != list.Places.constEnd())
        return known.value();
    const int number = static_cast<int>(list.Rows.size());
    list.Rows.push_back(Row_Of_Path(path));
    list.Places.insert(path, number);
    list.Filled = ++list.Stamp;
    return number;
}

QSet<QString> Ticked_Paths(const Video_List& list)
{
    QSet<QString> ticked;
    for (const Video_Row& row : list.Rows)
        if (row.Ticked)
            ticked.insert(row.Path());
    return ticked;
}

/// A run takes what was ticked when it began.
static bool May_Tick(const Program& program)
{
    return program.Videos.Takes_Ticks && !program.Run.Press_In_Work;
}

static void Set_Tick(Video_List& list, int number, bool ticked)
{
    list.Rows[static_cast<std::size_t>(number)].Ticked = ticked;
    list.Recount_Journal = true; // what is left counts what is ticked
    Touch(list, number);
}

void Tick_Only(Video_List& list, const QSet<QString>& paths)
{
    for (int number = 0; number < static_cast<int>(list.Rows.size()); ++number)
        Set_Tick(list, number, paths.contains(list.Rows[static_cast<std::size_t>(number)].Path()));
}

void Tick_Video(Program& program, int number)
{
    if (May_Tick(program))
        Set_Tick(program.Videos, number, !program.Videos.Rows[static_cast<std::size_t>(number)].Ticked);
}

void Take_In_Or_Leave_Out(Program& program)
{
    Video_List& list = program.Videos;
    if (!May_Tick(program))
        return;
    const bool take_in = std::any_of(list.Selected.begin(), list.Selected.end(), [&list](int number) {
        return !list.Rows[static_cast<std::size_t>(number)].Ticked;
    });
    for (const int number : list.Selected)
        Set_Tick(list, number, take_in);
}

/// What a run over that folder would look at, in its order.
static QStringList Paths_On_Disk(const Program& program, const QString& videos)
{
    const Extension_Switches& extensions = program.Settings.Extensions;
    const QStringList folders = extensions.Careful_Batch && extensions.Include_Subfolders
                                    ? Find_Subfolders(videos, program.Options.Path_Target).Paths
                                    : QStringList{QString()};
    const QSet<QString> walked(folders.begin(), folders.end());
    QStringList paths;
    for (const QString& sub : folders) {
        int error = 0;
        for (const Folder_Entry& entry : Video_Entries(videos + sub, error)) {
            const bool file = entry.Kind == Entry_Kind::File || entry.Kind == Entry_Kind::Unknown;
            // A classic run passes over what is no file, and what is walked is no entry.
            if (file || (extensions.Careful_Batch && !walked.contains(sub + entry.Name + Path_Separator)))
                paths += sub + entry.Name;
        }
    }
    return paths;
}

int Videos_In_Folder(const Program& program, const QString& folder)
{
    return static_cast<int>(Paths_On_Disk(program, folder).size());
}

void Recount_Videos_Folder(Program& program)
{
    if (!program.Run.Press_In_Work && program.Videos.Folder == program.Options.Path_Videos)
        Recount_Videos(program.Videos, Paths_On_Disk(program, program.Options.Path_Videos));
}

bool Follow_Videos_Folder(Program& program)
{
    Video_List& list = program.Videos;
    if (program.Run.Press_In_Work)
        return false;
    const Extension_Switches& extensions = program.Settings.Extensions;
    const bool below = extensions.Careful_Batch && extensions.Include_Subfolders;
    if (list.Takes_Ticks != extensions.Careful_Batch) {
        list.Takes_Ticks = !list.Takes_Ticks;
        list.Filled = ++list.Stamp; // every row shows another box
    }
    if (list.Folder == program.Options.Path_Videos && list.With_Subfolders == below)
        return false;
    list.With_Subfolders = below;
    Fill_Videos(list, program.Options.Path_Videos,
                program.Options.Path_Videos.isEmpty() ? QStringList()
                                                      : Paths_On_Disk(program, program.Options.Path_Videos));
    return true;
}

void Set_List_Buttons(Program& program)
{
    Main_Form& form = program.Form;
    const Video_List& list = program.Videos;
    const Run_State& run = program.Run;
    const bool busy = run.Press_In_Work && !run.Checking;
    form.btn_Check.Visible = !busy;
    form.btn_Check.Caption = run.Checking ? u"Stop Check"_s : u"Check"_s;
    form.btn_Check.Enabled = !list.Rows.empty() && form.btn_RunVantorra.Enabled;
    const auto offer = [&](Button& button, const QString& words, int count) {
        button.Caption = words.arg(count);
        button.Visible = list.Takes_Ticks && count > 0 && !busy;
        button.Enabled = form.btn_RunVantorra.Enabled && !run.Checking;
    };
    offer(form.btn_RunFailed, u"Run failed again (%1)"_s, list.Failed_Before);
    offer(form.btn_Continue, u"Continue (%1 left)"_s, list.Left_Over);
}
