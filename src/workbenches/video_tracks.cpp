#include "workbenches/video_tracks.h"

#include "inspect/json_probe.h"
#include "state/program.h"
#include "support/paths.h"
#include "workbenches/video_info_viewer.h"

#include <algorithm>

using namespace Qt::StringLiterals;

std::vector<int> Marked_In_List(const Program& program, const frm_ViewVFI& form, int row)
{
    const Video_List& list = program.Videos;
    QHash<QString, int> places;
    for (int place = 0; place < form.lst_VideoFiles.size(); ++place)
        places.insert(form.lst_VideoFiles[place], place);
    std::vector<int> rows{row};
    for (const int marked : list.Selected)
        if (const int place = places.value(list.Rows[static_cast<std::size_t>(marked)].Path(), row); place != row)
            rows.push_back(place);
    std::ranges::sort(rows);
    return rows;
}

static QString Path_Of(const Program& program, const frm_ViewVFI& form, int row)
{
    return program.Options.Path_Videos + form.lst_VideoFiles.value(row);
}

void ViewVFI_Pick(Program& program, frm_ViewVFI& form, const std::vector<int>& rows, int current)
{
    if (rows.size() < 2)
        return ViewVFI_lst_VideoFiles_Click(program, form, rows.empty() ? -1 : rows.front());
    const auto shown = std::ranges::find_if(
        rows, [&](int row) { return form.List_Index >= 0 && Path_Of(program, form, row) == form.Shown_File; });
    if (shown == rows.end())
        ViewVFI_lst_VideoFiles_Click(program, form, current);
    form.List_Index = shown == rows.end() ? current : *shown;
    form.Picked = rows;
    Want_Tracks(program, form);
}

static void Tell_Of_Table(frm_ViewVFI& form)
{
    const Track_Tab& tab = form.Tracks;
    const auto wanted = static_cast<std::size_t>(tab.Wanted.size());
    if (!tab.In_Front)
        form.lbl_Told.Caption.clear();
    else if (tab.Asked < wanted)
        form.lbl_Told.Caption = u"Asked about %1 of %2 videos"_s.arg(tab.Asked).arg(wanted);
    else
        form.lbl_Told.Caption = Table_Summary(tab.Table);
}

static void Fill_Table(Track_Tab& tab)
{
    tab.Table.Videos.clear();
    for (std::size_t video = 0; video < tab.Asked; ++video)
        tab.Table.Videos.push_back(&tab.Answers.at(tab.Wanted[static_cast<qsizetype>(video)]));
    Compare_Tracks(tab.Table);
}

/// Goes on past those that have an answer.
static void Count_Answers(Track_Tab& tab)
{
    const auto wanted = static_cast<std::size_t>(tab.Wanted.size());
    while (tab.Asked < wanted && tab.Answers.contains(tab.Wanted[static_cast<qsizetype>(tab.Asked)]))
        ++tab.Asked;
    // With many videos not each of them is worth comparing all anew.
    const std::size_t shown = tab.Table.Videos.size();
    if (tab.Asked == wanted || tab.Asked >= shown + std::max<std::size_t>(1, shown / 4))
        Fill_Table(tab);
}

void Want_Tracks(const Program& program, frm_ViewVFI& form)
{
    Track_Tab& tab = form.Tracks;
    QStringList wanted;
    for (const int row : form.Picked)
        wanted += Path_Of(program, form, row);
    if (form.Picked.empty() && !form.lbl_FileName.Caption.isEmpty())
        wanted += form.lbl_FileName.Caption;
    if (wanted == tab.Wanted)
        return;
    tab.Wanted = wanted;
    tab.Asked = 0;
    tab.Table.Videos.clear();
    Count_Answers(tab);
    Tell_Of_Table(form);
}

void ViewVFI_Show_Table(Program& program, frm_ViewVFI& form, bool in_front)
{
    form.Tracks.In_Front = in_front;
    Want_Tracks(program, form);
    Tell_Of_Table(form);
}

bool Is_To_Ask(const frm_ViewVFI& form)
{
    const Track_Tab& tab = form.Tracks;
    return form.Visible && tab.In_Front && tab.Asked < static_cast<std::size_t>(tab.Wanted.size());
}

void ViewVFI_Ask_Next(Program& program, frm_ViewVFI& form)
{
    Track_Tab& tab = form.Tracks;
    if (!Is_To_Ask(form))
        return;
    const QString path = tab.Wanted[static_cast<qsizetype>(tab.Asked)];
    tab.Stop = false;
    const QString why_not = Probe_Video(program, path);
    if (tab.Stop) {
        tab.Stop = false;
        program.Run.Halt_Requested = false;
        return;
    }
    Asked_Video video = Table_Video(File_Name_Of(path), program.Media.FileInfoList);
    video.Why_Not = why_not;
    video.Notes = program.Media.Probe_Warnings;
    tab.Answers.insert_or_assign(path, std::move(video));
    Count_Answers(tab);
    Tell_Of_Table(form);
}

void ViewVFI_Stop_Asking(Program& program, frm_ViewVFI& form)
{
    form.Tracks.Stop = true;
    program.Run.Halt_Requested = true;
}

void Forget_Tracks(frm_ViewVFI& form)
{
    const bool in_front = form.Tracks.In_Front;
    const std::uint64_t stamp = form.Tracks.Table.Stamp;
    form.Tracks = {};
    form.Tracks.In_Front = in_front;
    form.Tracks.Table.Stamp = stamp + 1;
    form.lbl_Told.Caption.clear();
}
