#include "rules/language_filter.h"

#include "state/program.h"
#include "support/text.h"

#include <utility>

using namespace Qt::StringLiterals;

static constexpr int Most_Languages = 10;

static void Show_Counts(Language_Filter_Form& form)
{
    form.lbl_SelLanguages.Caption = u"Selected Languages  =  "_s + QString::number(form.lst_LanguageSelection.size());
    form.lbl_List1Count.Caption = QString::number(form.lst_LanguageList.size());
}

static void Show_Kind(Language_Filter_Form& form, int kind)
{
    if (kind != 1 && kind != 2)
        return;
    const QString tracks = kind == 1 ? u"Audio"_s : u"Subtitle"_s;
    form.Caption = u"Choose "_s + tracks + u" Language(s) to Filter"_s;
    form.opt_CustomFilter_Captions = {u"Filter Out these "_s + tracks + u" languages"_s,
                                      u"Keep Only these "_s + tracks + u" languages"_s};
}

void Open_Language_Filter(Program& program)
{
    Language_Filter_Form& form = program.Language_Filter;
    const FilterSettings& filter = program.Settings.WorkingFilter;
    Show_Kind(form, filter.Kind);
    form.opt_CustomFilter = filter.KeepOrCut;
    form.lst_LanguageSelection = Split_Text(filter.Languages, u":"_s);
    form.lst_LanguageList.clear();
    for (const LanguageRow& row : program.Language_Table)
        if (const QString line = Language_Line(row); !form.lst_LanguageSelection.contains(line))
            form.lst_LanguageList += line;
    Show_Counts(form);
    form.Has_Place = filter.HasBox;
    form.Place = {.Left = filter.Left, .Top = filter.Top, .Width = filter.Width, .Height = filter.Height};
    form.Visible = true;
}

/// Puts a line back where the table has it; a line that is no row of the table goes to the end.
static void Give_Back(Program& program, const QString& line)
{
    QStringList& list = program.Language_Filter.lst_LanguageList;
    qsizetype position = 0;
    for (const LanguageRow& row : program.Language_Table) {
        const QString row_line = Language_Line(row);
        if (row_line == line)
            break;
        if (position < list.size() && list.at(position) == row_line)
            ++position;
    }
    list.insert(position, line);
}

void lst_LanguageList_Click(Program& program, int index)
{
    Language_Filter_Form& form = program.Language_Filter;
    if (index >= 0 && index < form.lst_LanguageList.size() && form.lst_LanguageSelection.size() < Most_Languages)
        form.lst_LanguageSelection += form.lst_LanguageList.takeAt(index);
    Show_Counts(form);
}

void lst_LanguageSelection_Click(Program& program, int index)
{
    Language_Filter_Form& form = program.Language_Filter;
    if (index >= 0 && index < form.lst_LanguageSelection.size())
        Give_Back(program, form.lst_LanguageSelection.takeAt(index));
    Show_Counts(form);
}

void opt_CustomFilter_Click(Program& program, int index)
{
    program.Language_Filter.opt_CustomFilter = index == 0 ? 0 : 1;
    program.Settings.WorkingFilter.KeepOrCut = index == 0 ? 0 : 1;
}

void btn_CustomClear_Click(Program& program)
{
    Language_Filter_Form& form = program.Language_Filter;
    for (const QString& line : std::as_const(form.lst_LanguageSelection))
        Give_Back(program, line);
    form.lst_LanguageSelection.clear();
    Show_Counts(form);
}

static void Close_Form(Program& program)
{
    Language_Filter_Form& form = program.Language_Filter;
    FilterSettings& filter = program.Settings.WorkingFilter;
    filter.Count = Checked_Int16(form.lst_LanguageSelection.size(), u"Counting the selected languages"_s);
    filter.Top = form.Place.Top;
    filter.Left = form.Place.Left;
    filter.Width = form.Place.Width;
    filter.Height = form.Place.Height;
    filter.HasBox = true;
    form.Visible = false;
}

void btn_CustomFilter_Done_Click(Program& program)
{
    program.Settings.WorkingFilter.Languages = program.Language_Filter.lst_LanguageSelection.join(u':');
    Close_Form(program);
}

void btn_CustomFilter_Cancel_Click(Program& program)
{
    // Deliberate: the languages stay as they were at the opening, but the count is that of the list as it stands, and
    // a changed choice between cut and keep holds.
    Close_Form(program);
}
