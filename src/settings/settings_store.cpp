#include "settings/settings_store.h"

#include "state/program.h"
#include "support/failure_box.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static QString Override_Name(const QString& section, const QString& key)
{
    return section.trimmed().toLower() + u'/' + key.trimmed().toLower();
}

/// What a row would write after it took a text; `refused` if it can't take it.
static std::optional<QString> Read_Back(const Settings_Row& row, const QString& text, Operator& person, bool& refused)
{
    Program scratch(person);
    try {
        row.Take(scratch, text, {});
        return row.Written(scratch);
    } catch (const Run_Time_Error&) {
        refused = true;
        return {};
    }
}

bool Is_Understood(const Settings_Row& row, const QString& text, Operator& person)
{
    if (!row.Take || !row.Written)
        return true;
    // What is written is the path in use, not the one that was read.
    if (row.Key == "System mkvmerge.exe Path"_L1)
        return true;
    bool refused = false;
    const std::optional<QString> kept = Read_Back(row, text, person, refused);
    if (refused)
        return false;
    if (kept && kept->trimmed().compare(text.trimmed(), Qt::CaseInsensitive) == 0)
        return true;
    // A text that comes to the same as one that surely means nothing means nothing itself.
    const std::optional<QString> of_nonsense = Read_Back(row, u"?"_s, person, refused);
    return refused || kept != of_nonsense;
}

void Set_Override(Settings_State& settings, const Settings_Row& row, const QString& value)
{
    settings.Overrides[Override_Name(row.Section, row.Key)] = value;
}

QString Source_Of(const Settings_State& settings, const Settings_Row& row)
{
    const QString key = row.Key.trimmed();
    if (settings.Overrides.contains(Override_Name(row.Section, key)))
        return u"--set \"%1/%2\""_s.arg(row.Section, key);
    return u"%1, [%2] \"%3\""_s.arg(settings.Ini_File, row.Section, key);
}

Override_Result Add_Override(Program& program, const QString& assignment)
{
    const qsizetype equals = assignment.indexOf(u'=');
    const qsizetype slash = assignment.indexOf(u'/');
    if (slash <= 0 || equals < slash)
        return Override_Result::No_Assignment;
    const QString section = assignment.left(slash);
    const QString key = assignment.mid(slash + 1, equals - slash - 1);
    const Settings_Row* const row = Find_Row(section, key);
    if (row == nullptr)
        return Override_Result::Unknown_Key;
    const QString value = assignment.mid(equals + 1);
    const bool is_read = row->Used == Settings_Row::Use::Read;
    if (is_read && !Is_Understood(*row, Ini_Value_As_Read(value), program.Person))
        return Override_Result::Not_Understood;
    Set_Override(program.Settings, *row, value);
    return is_read ? Override_Result::Taken : Override_Result::Without_Effect;
}

QString Read_Ini_Key(const Settings_State& settings, const Ini_Document& document, const QString& section,
                     const QString& key, const QString& missing)
{
    const auto found = settings.Overrides.find(Override_Name(section, key));
    if (found != settings.Overrides.end())
        return Ini_Value_As_Read(found->second);
    return document.Value(section, key).value_or(missing);
}

void Write_Ini_Key(Ini_Document& document, const QString& section, const QString& key, const QString& value)
{
    document.Set_Value(section, key, value);
}

void Delete_Ini_Section(Ini_Document& document, const QString& section)
{
    document.Delete_Section(section);
}

/// True for a file that an end with "Save Settings on Exit" off made: it has no other key of ours.
static bool Holds_Only_Save_On_Exit(const Ini_Document& document)
{
    const auto stands = [&document](const Settings_Row& row) {
        return document.Value(row.Section, row.Key).has_value();
    };
    const std::vector<Settings_Row>& rows = Settings_Rows();
    return stands(Row_Of(Row::Save_On_Exit)) && std::none_of(rows.begin(), rows.end(), [&](const Settings_Row& row) {
               return row.Number != Row::Save_On_Exit && stands(row);
           });
}

void Read_Settings(Program& program)
{
    Ini_Document document = Load_Ini_File(program.Settings.Ini_File);
    if (Holds_Only_Save_On_Exit(document)) {
        const Settings_Row& row = Row_Of(Row::Save_On_Exit);
        Ini_Document first;
        program.Settings.Save_On_Exit = true; // else nothing but its row is written
        Write_Settings_To(program, true, first);
        Write_Ini_Key(first, row.Section, row.Key, *document.Value(row.Section, row.Key));
        document = first;
    }
    Read_Settings_From(program, document);
}

Write_Outcome Write_Settings_To(Program& program, bool reset_fonts, Ini_Document& document)
{
    for (const Settings_Row& row : Settings_Rows()) {
        if (row.Number == 0)
            continue;
        // Deliberate: only the log viewer's font is reset, ahead of both rows; row 10 stores the viewer's present size.
        if (reset_fonts && (row.Number == Row::Log_Font || row.Number == Row::Info_Font))
            program.Settings.ProcessLog_Font_Size = 10;
        const std::optional<QString> text = row.Written(program);
        if (!text)
            return {&row};
        if (row.Section_Starts_Anew)
            Delete_Ini_Section(document, row.Section);
        Write_Ini_Key(document, row.Section, row.Key, *text);
        // Deliberate: without saving at the end nothing else is saved, when the operator asks for it neither.
        if (row.Number == Row::Save_On_Exit && !program.Settings.Save_On_Exit)
            break;
    }
    return {};
}

static void Tell_Not_Saved(Program& program, const Run_Time_Error& error)
{
    program.Person.Show_Message(Failure_Box(
        u"The settings could not be saved"_s, error,
        u"The file stays as it was. Make it and its folder writable, make room on the disk, then save the settings "
        "again."_s));
}

bool Save_Settings_File(Program& program, const Ini_Document& document)
{
    try {
        Save_Ini_File(program.Settings.Ini_File, document);
        return true;
    } catch (const Run_Time_Error& error) {
        Tell_Not_Saved(program, error);
        return false;
    }
}

void Write_Settings(Program& program, bool reset_fonts)
{
    Ini_Document document;
    try {
        document = Load_Ini_File(program.Settings.Ini_File);
    } catch (const Run_Time_Error& error) {
        Tell_Not_Saved(program, error);
        return;
    }
    const Write_Outcome outcome = Write_Settings_To(program, reset_fonts, document);
    Save_Settings_File(program, document);
    if (outcome.Failed_Row != nullptr)
        throw Run_Time_Error(
            Error_Number::Subscript_Out_Of_Range, u"Writing the settings"_s,
            u"%1, [%2] \"%3\""_s.arg(program.Settings.Ini_File, outcome.Failed_Row->Section, outcome.Failed_Row->Key),
            {},
            u"The box is neither on nor off, because the file had another word there. Put On or Off "
            "into the file. The settings ahead of this one are saved."_s);
}

void mnu_SaveNow_Click(Program& program)
{
    Write_Settings(program, program.Settings.Save_On_Exit);
}

void mnu_SaveOnQuit_Click(Program& program)
{
    program.Settings.Save_On_Exit = !program.Settings.Save_On_Exit;
}
