#include "rules/language_filter.h"

#include "state/program.h"
#include "support/shown_text.h"
#include "support/text.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

static constexpr int Most_Languages = 10;

static bool Has_Code(const Program& program, const QString& line, const QString& code)
{
    const QString wanted = Table_Code(code.toLower());
    return std::ranges::any_of(program.Language_Table, [&](const LanguageRow& row) {
        return (row.Iso639_1 == wanted || row.Iso639_2 == wanted) && Language_Line(row) == line;
    });
}

bool Is_Looked_For(const Program& program, const QString& line)
{
    const QString& wanted = program.Language_Filter.txt_Find;
    return line.contains(wanted, Qt::CaseInsensitive) || Has_Code(program, line, wanted);
}

static void Show_Counts(Program& program)
{
    Language_Filter_Form& form = program.Language_Filter;
    form.lbl_SelLanguages.Caption = u"Selected Languages  =  "_s + QString::number(form.lst_LanguageSelection.size());
    form.lbl_List1Count.Caption = QString::number(form.lst_LanguageList.size());
    if (!form.txt_Find.isEmpty())
        form.lbl_List1Count.Caption.prepend(u"%1 of "_s.arg(std::ranges::count_if(
            form.lst_LanguageList, [&](const QString& line) { return Is_Looked_For(program, line); })));
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

/// "German (ger)", "German (deu)", "xyz (xyz)": the filter compares codes as the tracks have them.
static Found_Language Found_Line(const LanguageTable& table, const QString& code)
{
    static const QRegularExpression plain(u"^[A-Za-z0-9?_-]+$"_s);
    QString name = code;
    if (QString display; Language_Display_Of(table, Table_Code(code), display))
        name = display.left(display.lastIndexOf(u" ("_s));
    return {.Line = name + u" ("_s + code + u')', .Choosable = plain.match(code).hasMatch()};
}

/// Counts the languages that the videos of the list are known to have.
static void Find_Languages(Program& program, bool of_audio)
{
    Language_Filter_Form& form = program.Language_Filter;
    QHash<QString, int> videos;
    form.Videos_Known = 0;
    for (const Video_Row& row : program.Videos.Rows) {
        form.Videos_Known += row.Languages_Known ? 1 : 0;
        for (const QString& code : of_audio ? row.Audio_Languages : row.Subtitle_Languages)
            ++videos[code];
    }
    form.lst_Found.clear();
    for (const auto& [code, count] : videos.asKeyValueRange()) {
        form.lst_Found.push_back(Found_Line(program.Language_Table, code));
        form.lst_Found.back().Videos = count;
    }
    std::ranges::sort(form.lst_Found, [](const Found_Language& one, const Found_Language& other) {
        return one.Videos != other.Videos ? one.Videos > other.Videos : one.Line < other.Line;
    });
}

/// What stands above and in place of lst_Found.
static void Show_Found(Program& program, const QString& tracks)
{
    Language_Filter_Form& form = program.Language_Filter;
    const auto all = static_cast<int>(program.Videos.Rows.size());
    const QString videos = all == 1 ? u"1 video"_s : u"%1 videos"_s.arg(all);
    form.lbl_FoundCount.Caption =
        form.Videos_Known == all ? videos : u"%1 of %2 checked"_s.arg(form.Videos_Known).arg(videos);
    if (all == 0)
        form.lbl_FoundHint.Caption =
            u"Choose a folder of videos and press Check to see here which languages they have."_s;
    else if (form.Videos_Known == 0)
        form.lbl_FoundHint.Caption = u"Press Check in the main window to see here which languages the videos have."_s;
    else
        form.lbl_FoundHint.Caption = u"No video that was checked has %1 tracks."_s.arg(tracks);
    form.lbl_FoundHint.Visible = form.lst_Found.empty();
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
    form.txt_Find.clear();
    Find_Languages(program, filter.Kind == 1);
    Show_Found(program, filter.Kind == 1 ? u"audio"_s : u"subtitle"_s);
    Show_Counts(program);
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
    Show_Counts(program);
}

void lst_LanguageSelection_Click(Program& program, int index)
{
    Language_Filter_Form& form = program.Language_Filter;
    if (index >= 0 && index < form.lst_LanguageSelection.size())
        Give_Back(program, form.lst_LanguageSelection.takeAt(index));
    Show_Counts(program);
}

bool Is_Selected(const Language_Filter_Form& form, int index)
{
    return form.lst_LanguageSelection.contains(form.lst_Found[static_cast<std::size_t>(index)].Line);
}

QString Found_Text(const Language_Filter_Form& form, int index)
{
    const Found_Language& found = form.lst_Found[static_cast<std::size_t>(index)];
    return u"%1 of %2"_s.arg(found.Videos).arg(form.Videos_Known).prepend(Printable(found.Line) + u" - "_s);
}

void lst_Found_Click(Program& program, int index)
{
    Language_Filter_Form& form = program.Language_Filter;
    if (index < 0 || index >= static_cast<int>(form.lst_Found.size()))
        return;
    const Found_Language& found = form.lst_Found[static_cast<std::size_t>(index)];
    if (Is_Selected(form, index)) {
        lst_LanguageSelection_Click(program, static_cast<int>(form.lst_LanguageSelection.indexOf(found.Line)));
    } else if (found.Choosable && form.lst_LanguageSelection.size() < Most_Languages) {
        form.lst_LanguageList.removeOne(found.Line);
        form.lst_LanguageSelection += found.Line;
    }
    Show_Counts(program);
}

void txt_Find_Change(Program& program, const QString& text)
{
    program.Language_Filter.txt_Find = text;
    Show_Counts(program);
}

bool txt_Find_Return(Program& program)
{
    const Language_Filter_Form& form = program.Language_Filter;
    if (form.txt_Find.isEmpty())
        return false;
    const auto place_where = [&](const auto& fits) {
        return static_cast<int>(std::ranges::find_if(form.lst_LanguageList, fits) - form.lst_LanguageList.begin());
    };
    int place = place_where([&](const QString& line) { return Has_Code(program, line, form.txt_Find); });
    if (place == form.lst_LanguageList.size())
        place = place_where([&](const QString& line) { return Is_Looked_For(program, line); });
    lst_LanguageList_Click(program, place);
    return true;
}

QString Filter_Tip(const FilterSettings& filter, const QString& tracks)
{
    if (filter.Languages.isEmpty())
        return {};
    return (filter.KeepOrCut == 1 ? u"Keeps only the "_s : u"Cuts the "_s) + tracks + u" tracks in "_s +
           Printable(Split_Text(filter.Languages, u":"_s).join(u", "_s)) + u"; a right click opens the list."_s;
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
    Show_Counts(program);
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
