#include "rules/video_texts.h"

#include "rules/video_list.h"
#include "support/amount_text.h"
#include "support/paths.h"
#include "support/shown_text.h"

using namespace Qt::StringLiterals;

QString Column_Head(Video_Column column)
{
    switch (column) {
    case Video_Column::State:
        return u"State"_s;
    case Video_Column::Video:
        return u"Video"_s;
    case Video_Column::Length:
        return u"Length"_s;
    case Video_Column::Size:
        return u"Size"_s;
    case Video_Column::Keeps:
        return u"Keeps"_s;
    case Video_Column::Adds:
        return u"Adds"_s;
    case Video_Column::Result:
        break;
    }
    return u"Result"_s;
}

QString State_Word(const Video_Row& row, bool takes_ticks)
{
    switch (Shown_State(row, takes_ticks)) {
    case Video_State::Waiting:
        return u"Waiting"_s;
    case Video_State::Left_Out:
        return u"Left out"_s;
    case Video_State::Working:
        return row.Percent < 0 ? u"Checking"_s : u"%1 %"_s.arg(row.Percent);
    case Video_State::Done:
        return u"Done"_s;
    case Video_State::Warning:
        return u"Warning"_s;
    case Video_State::Failed:
        return u"Failed"_s;
    case Video_State::Skipped:
        return u"Skipped"_s;
    case Video_State::Not_Run:
        break;
    }
    return u"Not run"_s;
}

/// What is to be said first about a video, with how much more there is.
static QString First_Of(const QStringList& lines)
{
    return lines.size() < 2 ? lines.value(0) : u"%1 (and %2 more)"_s.arg(lines.constFirst()).arg(lines.size() - 1);
}

/// The reason, else what was warned of or spoke against a run, else the output's name; and the time that it took. A
/// forecast speaks of the next run.
static QString Result_Text(const Video_Row& row)
{
    QString text = !row.Reason.isEmpty() ? row.Reason : First_Of(row.Warnings + row.Problems);
    if (row.State == Video_State::Working || (text.isEmpty() && !row.Forecast.isEmpty()))
        return text.isEmpty() ? row.Forecast : text;
    if (text.isEmpty() && Has_Output(row))
        text = File_Name_Of(row.Output) + (row.Pieces > 1 ? u", %1 pieces"_s.arg(row.Pieces) : QString());
    if (row.Seconds_Taken <= 0)
        return text;
    const QString taken = row.Seconds_Taken < 10 ? QString::number(row.Seconds_Taken, 'f', 1) + u" s"_s
                                                 : Time_Text(static_cast<qint64>(row.Seconds_Taken));
    return text.isEmpty() ? taken : text + u"  ("_s + taken + u')';
}

QString Cell_Text(const Video_Row& row, Video_Column column, bool takes_ticks)
{
    switch (column) {
    case Video_Column::State:
        return State_Word(row, takes_ticks);
    case Video_Column::Video:
        return Printable(row.Path());
    case Video_Column::Length:
        return row.Length ? Time_Text(static_cast<qint64>(*row.Length)) : QString();
    case Video_Column::Size:
        return row.Bytes ? Size_Text(static_cast<double>(*row.Bytes)) : QString();
    case Video_Column::Keeps:
        return row.Keeps;
    case Video_Column::Adds:
        return row.Adds;
    case Video_Column::Result:
        break;
    }
    return Printable(Result_Text(row));
}

QString Cell_Hint(const Video_Row& row, Video_Column column)
{
    QStringList lines;
    if (column == Video_Column::Video)
        lines += row.Path();
    else if (column == Video_Column::Keeps)
        lines = row.Kept_Tracks;
    else if (column == Video_Column::Adds)
        lines = row.Added_Files;
    else if (column == Video_Column::Result || column == Video_Column::State)
        lines = QStringList(row.Reason) + row.Warnings + row.Problems + QStringList{row.Forecast, row.Output};
    lines.removeAll(QString());
    for (QString& line : lines)
        line = Printable(line);
    return lines.join(u'\n');
}

QString List_Caption(const Video_List& list)
{
    return u"Videos (%1)"_s.arg(list.Rows.size());
}
