#include "settings/preset_file.h"

#include "settings/settings_store.h"
#include "state/program.h"
#include "support/disk_names.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

bool Is_Of_Preset(const Settings_Row& row)
{
    // Told by what it lacks, so that a new option is of a preset from its first day.
    static const QStringList sections = {u"MainWindow"_s,
                                         u"ProcessLog"_s,
                                         u"View Video File Info"_s,
                                         u"Paths"_s,
                                         u"Most Recently Used Sources"_s,
                                         u"Most Recently Used Destinations"_s};
    static const QStringList keys = {u"Menu/Delete Processed File"_s,   u"Menu/Delete Source Video Sundry Files"_s,
                                     u"Extensions/Careful Batch"_s,     u"Extensions/Video List Open"_s,
                                     u"Extensions/Video List Height"_s, u"Extensions/Wrap Log Lines"_s};
    return row.Number != 0 && !row.Default_Is_Form_Place && !sections.contains(row.Section) &&
           !keys.contains(row.Section + u'/' + row.Key);
}

/// Calls `visit` with each row of the preset that the program reads, and its text.
template <typename Visit>
static void For_Each_Row(const Ini_Document& preset, Visit visit)
{
    for (const Settings_Row& row : Settings_Rows())
        if (Is_Of_Preset(row) && row.Used == Settings_Row::Use::Read)
            if (const std::optional<QString> text = preset.Value(row.Section, row.Key))
                visit(row, *text);
}

QStringList Preset_Values(const Program& program)
{
    QStringList values;
    for (const Settings_Row& row : Settings_Rows())
        if (Is_Of_Preset(row) && row.Used == Settings_Row::Use::Read)
            values += Value_In_Force(row, program);
    return values;
}

/// The empty text of a sticky value is understood, too, though a word that means nothing comes to the same.
static bool Is_At_Rest(const Settings_Row& row, const QString& text, Operator& person)
{
    return row.Written(Program(person)) == text;
}

Ini_Document Read_Preset(const QString& path, Operator& person)
{
    const QString doing = u"Reading a preset"_s;
    if (Has_Stand_Ins(path))
        throw Run_Time_Error(Error_Number::Path_File_Access_Error, doing, Printable(path), {},
                             u"The name isn't valid UTF-8. Give the file another one."_s);
    if (!Path_Exists(path) && !File_Exists(path))
        throw Run_Time_Error(Error_Number::File_Not_Found, doing, Printable(path));
    Ini_Document preset = Load_Ini_File(path);
    int rows = 0;
    For_Each_Row(preset, [&](const Settings_Row& row, const QString& text) {
        ++rows;
        if (!Is_Understood(row, text, person) && !Is_At_Rest(row, text, person))
            throw Run_Time_Error(Error_Number::Type_Mismatch, doing,
                                 u"%1, [%2] \"%3\""_s.arg(Printable(path), row.Section, row.Key.trimmed()), text,
                                 u"This version doesn't know that value. Mend it, or take the line out."_s);
    });
    if (rows == 0)
        throw Run_Time_Error(Error_Number::Path_File_Access_Error, doing, Printable(path), {},
                             u"The file holds no option of this program."_s);
    return preset;
}

/// A text that a settings file holds so that it reads back whole, quotes and blanks at its ends included.
static QString Guarded(const QString& text)
{
    return Ini_Value_As_Read(text) == text ? text : u'"' + text + u'"';
}

void Override_By_Preset(Program& program, const Ini_Document& preset)
{
    For_Each_Row(preset, [&](const Settings_Row& row, const QString& text) {
        Set_Override(program.Settings, row, Guarded(text));
    });
}

QStringList What_Stays_Off(const Program& program, const Ini_Document& preset)
{
    QStringList keys;
    For_Each_Row(preset, [&](const Settings_Row& row, const QString&) {
        // An override may have turned it off on purpose.
        const QString asked = Read_Ini_Key(program.Settings, preset, row.Section, row.Key, {});
        if (asked.compare(u"on"_s, Qt::CaseInsensitive) == 0 && row.Written(program) == u"Off"_s)
            keys += row.Key.trimmed();
    });
    return keys;
}

const Settings_Row* Write_Preset_To(const Program& program, Ini_Document& preset)
{
    std::vector<std::pair<const Settings_Row*, QString>> texts;
    Program scratch(program.Person);
    for (const Settings_Row& row : Settings_Rows()) {
        if (!Is_Of_Preset(row))
            continue;
        std::optional<QString> text = row.Written(program);
        if (!text)
            return &row;
        // What was typed half counts as it would after the next start, so that a preset can always be loaded.
        if (row.Take) {
            row.Take(scratch, *text, {});
            text = row.Written(scratch).value_or(*text);
        }
        texts.emplace_back(&row, *text);
    }
    for (const auto& [row, text] : texts)
        preset.Set_Value(row->Section, row->Key, Guarded(text));
    return nullptr;
}

QString Preset_Title(const Program& program)
{
    const Loaded_Preset& preset = program.Settings.Preset;
    if (preset.Name.isEmpty())
        return {};
    return Printable(preset.Name) + (Preset_Values(program) == preset.Values ? QString() : u" *"_s);
}
