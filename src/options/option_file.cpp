#include "options/option_file.h"

#include "support/files.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/string_builder.h"
#include "support/text.h"
#include "support/trash.h"
#include "support/whole_file.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// The keys by slot, as they are written and as they are read.
static const std::array<QString, 5> Written_Keys = {u"Title="_s, u"Language="_s, u"Default="_s, u"Forced="_s,
                                                    u"Delay="_s};
static const std::array<QString, 5> Read_Keys = {u"title"_s, u"language"_s, u"default"_s, u"forced"_s, u"delay"_s};

/// The key of a line: all that stands before the first "=", or the whole line, lower-cased. Not trimmed.
static QString Key_Of(const QString& line)
{
    return Ascii_Lower(line.left(line.indexOf(u'=')));
}

static QString Language_Of_Line(const LanguageTable& table, const QString& value, const QString& path)
{
    try {
        return Language_Code_Of(table, value);
    } catch (const Run_Time_Error& error) {
        throw Run_Time_Error(error.Number(), u"Reading the language of an option file"_s, path, u"Language="_s + value,
                             u"Write a language behind the \"=\", or take the line out."_s);
    }
}

bool Read_Option_File(const LanguageTable& table, const QString& media_path, Option_Values& values)
{
    values = {};
    const QString path = As_On_Disk(media_path + u".opt"_s);
    if (!File_Exists(path))
        return false;
    for (const QString& line : Read_Lines(path)) {
        if (line.startsWith(u'#') || Trim_Blanks(line).isEmpty())
            continue;
        if (!line.contains(u'=')) {
            // Deliberate: one bad line voids the whole file, values already read included.
            values = {};
            return false;
        }
        const auto* const key = std::find(Read_Keys.begin(), Read_Keys.end(), Key_Of(line));
        if (key == Read_Keys.end())
            continue;
        const auto slot = static_cast<std::size_t>(key - Read_Keys.begin());
        const QString value = Piece_Of(line, u'=', 1);
        values[slot] = slot == Language_Slot ? Language_Of_Line(table, value, path) : value;
    }
    return true;
}

/// One field of the editor's record and its bit.
struct Record_Field
{
    QString Key; ///< lower case
    QString OptionRecord::*Field;
    std::int32_t Flag;
};

static const std::array<Record_Field, 6> Record_Fields = {{
    {u"title"_s, &OptionRecord::Title, Title_Flag},
    {u"language"_s, &OptionRecord::Language, Language_Flag},
    {u"default"_s, &OptionRecord::Default, Default_Flag},
    {u"forced"_s, &OptionRecord::Forced, Forced_Flag},
    {u"delay"_s, &OptionRecord::Delay, Delay_Flag},
    {u"stretch"_s, &OptionRecord::Stretch, Stretch_Flag},
}};

/// Takes the comments out of `lines`, leaving an empty line each.
static void Parse_Option_Comments(QStringList& lines, OptionRecord& record)
{
    record.Comments.clear();
    for (QString& line : lines) {
        if (!line.startsWith(u'#'))
            continue;
        record.Comments += Trim_Blanks(line.mid(1));
        Set_Option_Flag(record, Comments_Flag, true);
        line.clear();
    }
}

static void Parse_Option_Values(const QStringList& lines, const QString& path, OptionRecord& record)
{
    for (const QString& line : lines) {
        const QString key = Key_Of(line);
        const auto* field = std::find_if(Record_Fields.begin(), Record_Fields.end(),
                                         [&](const Record_Field& candidate) { return candidate.Key == key; });
        if (field == Record_Fields.end())
            continue;
        if (!line.contains(u'='))
            throw Run_Time_Error(Error_Number::Subscript_Out_Of_Range, u"Reading an option file"_s, path, line,
                                 u"Write \"=\" and a value behind the key, or take the line out."_s);
        record.*field->Field = Trim_Blanks(Piece_Of(line, u'=', 1));
        Set_Option_Flag(record, field->Flag, true);
    }
}

bool Load_Option_Record(const QString& option_path, OptionRecord& record)
{
    if (!File_Exists(option_path))
        return false;
    QStringList lines = Read_Lines(option_path);
    Parse_Option_Comments(lines, record);
    Parse_Option_Values(lines, option_path, record);
    return true;
}

Option_Values Values_Of(const OptionRecord& record)
{
    return {record.Title, record.Language, record.Default, record.Forced, record.Delay};
}

void Set_Option_Flag(OptionRecord& record, std::int32_t mask, bool present)
{
    record.Flags = present ? record.Flags | mask : record.Flags & ~mask;
}

void Clear_Option_Record(OptionRecord& record)
{
    record = {};
}

static bool All_Empty(const Option_Values& values)
{
    return std::all_of(values.begin(), values.end(), [](const QString& value) { return value.isEmpty(); });
}

/// Deliberate: only the five keys are written. Comments, "stretch" and unknown keys are dropped, nothing is escaped. A
/// line break in a value would make the run take the whole file for a bad one, so it becomes a blank.
static void Write_Values(const QString& option_path, const Option_Values& values)
{
    QString text;
    for (std::size_t slot = 0; slot < values.size(); ++slot)
        if (!values[slot].isEmpty())
            text += Written_Keys[slot] + On_One_Line(values[slot]) + Line_Break;
    Write_Whole_File(option_path, text.toUtf8());
}

Option_Write_Status Write_Option_File(const QString& option_path, const Option_Values& values, clsStringBuilder& faults)
{
    if (All_Empty(values)) {
        if (!File_Exists(option_path))
            return Option_Write_Status::Nothing_To_Write;
        return Delete_To_Recycle(option_path, faults) ? Option_Write_Status::Recycled
                                                      : Option_Write_Status::Not_Recycled;
    }
    Write_Values(option_path, values);
    return Option_Write_Status::Written;
}

Option_Write_Status Merge_Option_File(const QString& option_path, const Option_Values& values)
{
    if (All_Empty(values))
        return Option_Write_Status::Left_Alone;
    OptionRecord record;
    Load_Option_Record(option_path, record);
    const Option_Values old_values = Values_Of(record);
    Option_Values merged = values;
    for (std::size_t slot = 0; slot < merged.size(); ++slot)
        if (merged[slot].isEmpty())
            merged[slot] = old_values[slot];
    Write_Values(option_path, merged);
    return Option_Write_Status::Written;
}
