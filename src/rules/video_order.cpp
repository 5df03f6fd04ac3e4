#include "rules/video_order.h"

#include "rules/video_list.h"
#include "rules/video_texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static bool Stands_For(Video_Chip chip, const Video_Row& row, bool takes_ticks)
{
    const Video_State state = Shown_State(row, takes_ticks);
    switch (chip) {
    case Video_Chip::All:
        return true;
    case Video_Chip::Waiting:
        return state == Video_State::Waiting || state == Video_State::Working;
    case Video_Chip::Done:
        return state == Video_State::Done;
    case Video_Chip::Warnings:
        return state == Video_State::Warning;
    case Video_Chip::Failed:
        return state == Video_State::Failed;
    case Video_Chip::Problems:
        return !row.Problems.isEmpty();
    case Video_Chip::Left_Out:
        return state == Video_State::Left_Out;
    case Video_Chip::Skipped:
        return state == Video_State::Skipped;
    case Video_Chip::Not_Run:
        break;
    }
    return state == Video_State::Not_Run;
}

std::array<int, Chip_Count> Count_Chips(const Video_List& list)
{
    std::array<int, Chip_Count> counts{};
    for (const Video_Row& row : list.Rows)
        for (std::size_t chip = 0; chip < Chip_Count; ++chip)
            counts[chip] += Stands_For(static_cast<Video_Chip>(chip), row, list.Takes_Ticks) ? 1 : 0;
    return counts;
}

QString Chip_Caption(Video_Chip chip, int count)
{
    static const std::array<QString, Chip_Count> words = {u"All"_s,      u"Waiting"_s, u"Done"_s,
                                                          u"Warnings"_s, u"Failed"_s,  u"Problems"_s,
                                                          u"Left out"_s, u"Skipped"_s, u"Not run"_s};
    return words[static_cast<std::size_t>(chip)] + u' ' + QString::number(count);
}

bool Is_Always_Shown(Video_Chip chip)
{
    return chip <= Video_Chip::Failed;
}

static bool Passes_Filter(const Video_List& list, const Video_Row& row)
{
    if (list.Filter.isEmpty() || row.Name.contains(list.Filter, Qt::CaseInsensitive) ||
        row.Sub_Path.contains(list.Filter, Qt::CaseInsensitive))
        return true;
    return Cell_Text(row, Video_Column::Result, list.Takes_Ticks).contains(list.Filter, Qt::CaseInsensitive);
}

/// What a row is sorted by: numbers by their worth, what isn't known last.
static bool Comes_Before(const Video_List& list, Video_Column column, int left, int right)
{
    const Video_Row& one = list.Rows[static_cast<std::size_t>(left)];
    const Video_Row& other = list.Rows[static_cast<std::size_t>(right)];
    switch (column) {
    case Video_Column::State:
        return Shown_State(one, list.Takes_Ticks) < Shown_State(other, list.Takes_Ticks);
    case Video_Column::Length:
        return one.Length.value_or(-1) < other.Length.value_or(-1);
    case Video_Column::Size:
        return one.Bytes.value_or(-1) < other.Bytes.value_or(-1);
    case Video_Column::Keeps:
        return one.Keeps < other.Keeps;
    case Video_Column::Adds:
        return one.Adds < other.Adds;
    case Video_Column::Video:
        return left < right; // the walk goes by name
    case Video_Column::Result:
        break;
    }
    return one.Reason != other.Reason ? one.Reason < other.Reason : one.Output < other.Output;
}

std::vector<int> Shown_Rows(const Video_List& list)
{
    std::vector<int> shown;
    shown.reserve(list.Rows.size());
    for (int number = 0; number < static_cast<int>(list.Rows.size()); ++number) {
        const Video_Row& row = list.Rows[static_cast<std::size_t>(number)];
        if (Stands_For(list.Chip, row, list.Takes_Ticks) && Passes_Filter(list, row))
            shown.push_back(number);
    }
    if (list.Sorted_By)
        std::stable_sort(shown.begin(), shown.end(), [&list](int left, int right) {
            return list.Descending ? Comes_Before(list, *list.Sorted_By, right, left)
                                   : Comes_Before(list, *list.Sorted_By, left, right);
        });
    return shown;
}

void Choose_Chip(Video_List& list, Video_Chip chip)
{
    list.Chip = chip;
    list.Filled = ++list.Stamp;
}

void Set_Filter(Video_List& list, const QString& text)
{
    list.Filter = text.trimmed();
    list.Filled = ++list.Stamp;
}

void Sort_Videos(Video_List& list, Video_Column column)
{
    if (list.Sorted_By != column) {
        list.Sorted_By = column;
        list.Descending = false;
    } else if (!list.Descending) {
        list.Descending = true;
    } else {
        list.Sorted_By.reset();
        list.Descending = false;
    }
    list.Filled = ++list.Stamp;
}
