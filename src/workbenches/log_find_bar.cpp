#include "workbenches/log_find_bar.h"

#include "workbenches/log_search.h"
#include "workbenches/log_viewer.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void ProcessLog_lst_ProcessLog_Click(frm_ProcessLog& form, int row)
{
    form.Selected_Row = row;
    const auto behind = std::ranges::upper_bound(form.lst_Entries, row, {}, &Log_Entry_Head::Row);
    form.Entry_Row = static_cast<int>(behind - form.lst_Entries.begin()) - 1;
}

/// On to the next of `rows`; tells which it is. `what` they are called.
static void Go_On(frm_ProcessLog& form, const std::vector<int>& rows, int from, bool back, const QString& what)
{
    const int place = Next_Place(rows, from, back);
    if (place >= 0)
        ProcessLog_lst_ProcessLog_Click(form, rows[static_cast<std::size_t>(place)]);
    // There may be more in the log than what is loaded.
    form.lbl_Place.Caption = place >= 0 ? what + u' ' + Place_Text(place, rows.size())
                                        : u"%1: none in these %2 lines"_s.arg(what).arg(form.lst_ProcessLog.size());
}

static void Find(frm_ProcessLog& form, int from, bool back)
{
    if (form.Find.Text.isEmpty())
        form.lbl_Place.Caption.clear();
    else
        Go_On(form, form.Find.Rows, from, back, u"Found"_s);
}

void Look_Through_Lines(frm_ProcessLog& form)
{
    form.lst_Entries = Entry_Heads(form.lst_ProcessLog);
    form.Find.Rows = Rows_Holding(form.lst_ProcessLog, form.Find.Text);
    form.lbl_Place.Caption.clear();
    ProcessLog_lst_ProcessLog_Click(form, form.Selected_Row);
}

void ProcessLog_Open_Find(frm_ProcessLog& form)
{
    form.Find.Open = true;
    form.Focus = u"txt_Find"_s;
}

void ProcessLog_Close_Find(frm_ProcessLog& form)
{
    form.Find.Open = false;
    form.lbl_Place.Caption.clear();
    form.Focus = u"lst_ProcessLog"_s;
}

void ProcessLog_txt_Find_Change(frm_ProcessLog& form, const QString& text)
{
    form.Find.Text = text;
    form.Find.Rows = Rows_Holding(form.lst_ProcessLog, text);
    Find(form, form.Selected_Row - 1, false);
}

void ProcessLog_Find_Next(frm_ProcessLog& form, bool back)
{
    if (form.Find.Text.isEmpty())
        ProcessLog_Open_Find(form);
    else
        Find(form, form.Selected_Row, back);
}

void ProcessLog_Next_Fault(frm_ProcessLog& form, bool back)
{
    Go_On(form, Rows_Of_Kind(form.lst_ProcessLog, Log_Line::Fault), form.Selected_Row, back, u"Fault"_s);
}

void ProcessLog_lst_Entries_Click(frm_ProcessLog& form, int entry)
{
    if (entry >= 0 && static_cast<std::size_t>(entry) < form.lst_Entries.size())
        ProcessLog_lst_ProcessLog_Click(form, form.lst_Entries[static_cast<std::size_t>(entry)].Row);
}
