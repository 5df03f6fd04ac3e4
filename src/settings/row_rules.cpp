#include "settings/row_rules.h"

#include "settings/ini_file.h"
#include "settings/setting_texts.h"
#include "support/text.h"

#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

std::optional<QString> On_Off_Text(int value)
{
    // Deliberate: a box that a bad word left neither ticked nor unticked has no text, and the writing ends there.
    return Word_Of({u"Off"_s, u"On"_s}, value);
}

const QStringList& Chapter_Formats()
{
    static const QStringList formats{u"HH:MM:SS.ff"_s, u"HH:MM:SS.hh(h)"_s};
    return formats;
}

QString Storable_Path(const QString& path)
{
    const bool is_whole =
        !path.contains(u'\n') && !path.contains(u'\r') && !path.contains(QChar(u'\0')) && path.size() <= Longest_Value;
    return is_whole ? path : QString();
}

Settings_Row Check_Row(const QString& section, const QString& key, Check_Box JobOptions::*box, const QString& missing)
{
    return {.Section = section,
            .Key = key,
            .Default = missing,
            .Written = [box](const Program& program) { return On_Off_Text((program.Options.*box).Value); },
            .Take = [box](Program& program, const QString& text,
                          const QString&) { (program.Options.*box).Value = On_Off_Value(text); }};
}

Settings_Row Plain_On_Row(const QString& section, const QString& key, Check_Box JobOptions::*box)
{
    // Deliberate: a missing key means on here, while the first file says off.
    Settings_Row row = Check_Row(section, key, box, u"on"_s);
    row.Take = [box](Program& program, const QString& text, const QString&) {
        (program.Options.*box).Value = text.toLower() == u"on"_s ? 1 : 0;
    };
    return row;
}

Settings_Row Word_Row(const QString& section, const QString& key, Check_Box JobOptions::*box)
{
    const auto word = [](const QString& text) { return text.toLower() == u"yes"_s ? u"yes"_s : u"no"_s; };
    return {.Section = section,
            .Key = key,
            .Default = u"yes"_s,
            .Written = [box, word](const Program& program) { return word((program.Options.*box).Tag); },
            .Take = [box, word](Program& program, const QString& text,
                                const QString&) { (program.Options.*box).Tag = word(text); }};
}

Settings_Row Enabled_Row(const QString& section, const QString& key, Check_Box JobOptions::*box)
{
    return {
        .Section = section,
        .Key = key,
        .Default = u"Enabled"_s,
        .Used = Settings_Row::Use::Ignored, // Enabled_From_Text says why
        .Written = [box](const Program& program) { return Enabled_Text(Truth_Text((program.Options.*box).Enabled)); },
        .Take = [box](Program& program, const QString& text,
                      const QString&) { (program.Options.*box).Enabled = Enabled_From_Text(text); }};
}

Settings_Row Truth_Row(const QString& section, const QString& key, const QString& missing, bool JobOptions::*flag)
{
    return {.Section = section,
            .Key = key,
            .Default = missing,
            .Written = [flag](const Program& program) { return Truth_Text(program.Options.*flag); },
            .Take = [flag](Program& program, const QString& text,
                           const QString&) { program.Options.*flag = False_From_Text(text); }};
}

Settings_Row Text_Row(const QString& section, const QString& key, QString JobOptions::*text)
{
    return {.Section = section,
            .Key = key,
            .Written = [text](const Program& program) { return program.Options.*text; },
            .Take = [text](Program& program, const QString& read, const QString&) { program.Options.*text = read; }};
}

Settings_Row Folder_Row(const QString& key, QString JobOptions::*path)
{
    Settings_Row row = Text_Row(u"Paths"_s, key, path);
    row.Written = [path](const Program& program) { return Storable_Path(program.Options.*path); };
    row.Take = [path](Program& program, const QString& read, const QString&) {
        program.Options.*path = QDir::toNativeSeparators(read);
    };
    return row;
}

Settings_Row Kind_Row(const QString& section, const QString& key, const QString& missing,
                      std::int16_t JobOptions::*kind, const QStringList& words)
{
    return {
        .Section = section,
        .Key = key,
        .Default = missing,
        .Written = [kind, words](const Program& program) { return words.value(program.Options.*kind, words.at(0)); },
        .Take =
            [kind, words](Program& program, const QString& text, const QString&) {
                const QString lowered = text.toLower();
                program.Options.*kind = 0;
                for (qsizetype index = 1; index < words.size(); ++index)
                    if (words.at(index).toLower() == lowered)
                        program.Options.*kind = static_cast<std::int16_t>(index);
            }};
}

Settings_Row Value_Row(const QString& section, const QString& key, const QString& empty_word, QString JobOptions::*text)
{
    return {.Section = section,
            .Key = key,
            .Default = empty_word.toLower(),
            .Written =
                [text, empty_word](const Program& program) {
                    const QString& value = program.Options.*text;
                    return value.isEmpty() ? empty_word : value;
                },
            .Take =
                [text](Program& program, const QString& read, const QString&) {
                    const QString lowered = read.toLower();
                    program.Options.*text = lowered == u"emptyvalue"_s ? QString() : lowered;
                }};
}

Settings_Row Choice_Row(const QString& section, const QString& key, Option_Pair JobOptions::*pair)
{
    return {
        .Section = section,
        .Key = key,
        .Default = u"if empty"_s,
        .Written =
            [pair](const Program& program) {
                return (program.Options.*pair).Selected == 2 ? u"Force"_s : u"If Empty"_s;
            },
        .Take = [pair](Program& program, const QString& text,
                       const QString&) { (program.Options.*pair).Selected = text.toLower() == u"force"_s ? 2 : 1; }};
}

Settings_Row Languages_Row(const QString& section, const QString& key, const QString& empty_word,
                           FilterSettings JobOptions::*filter)
{
    return {.Section = section,
            .Key = key,
            .Default = u"None"_s,
            .Written =
                [filter, empty_word](const Program& program) {
                    // Deliberate: the empty word is NONE for audio and None for subtitles.
                    const QString& languages = (program.Options.*filter).Languages;
                    return languages.isEmpty() ? empty_word : languages;
                },
            .Take =
                [filter](Program& program, const QString& text, const QString&) {
                    (program.Options.*filter).Languages = text.toLower() == u"none"_s ? QString() : text;
                }};
}

Settings_Row Keep_Row(const QString& section, const QString& key, FilterSettings JobOptions::*filter)
{
    return {.Section = section,
            .Key = key,
            .Default = u"Cut"_s,
            .Written = [filter](const Program& program) { return Cut_Keep_Text((program.Options.*filter).KeepOrCut); },
            .Take = [filter](Program& program, const QString& text,
                             const QString&) { (program.Options.*filter).KeepOrCut = Keep_Index(text); }};
}

static QString Form_Place_Text(const Program& program)
{
    const Form_Place& place = program.Form.Place;
    return Box_Text({place.Top, place.Left, place.Width, place.Height, 0, false});
}

Settings_Row Filter_Box_Row(const QString& section, const QString& key, FilterSettings JobOptions::*filter)
{
    return {.Section = section,
            .Key = key,
            .Default_Is_Form_Place = true,
            .Written =
                [filter](const Program& program) {
                    const FilterSettings& place = program.Options.*filter;
                    return Box_Text({place.Top, place.Left, place.Width, place.Height, 0, false});
                },
            .Take =
                [filter](Program& program, const QString& text, const QString& where) {
                    const WindowBox box = Box_From_Text(text, Form_Place_Text(program), true, where);
                    FilterSettings& place = program.Options.*filter;
                    place.Top = box.Top;
                    place.Left = box.Left;
                    place.Width = box.Width;
                    place.Height = box.Height;
                    place.HasBox = box.HasBox;
                }};
}

Settings_Row Place_Row(const QString& key, int Form_Place::*number, bool is_position)
{
    return {.Section = u"MainWindow"_s,
            .Key = key,
            .Written =
                [number, is_position](const Program& program) {
                    const int value = program.Form.Place.*number;
                    return QString::number(is_position ? std::max(value, 0) : value);
                },
            .Take = [number](Program& program, const QString& text,
                             const QString& where) { program.Form.Place.*number = Setting_Int32(text, where); }};
}

Settings_Row Box_Row(const QString& section, const QString& key, WindowBox Settings_State::*box, bool absolute)
{
    return {.Section = section,
            .Key = key,
            .Default_Is_Form_Place = true,
            .Written = [box](const Program& program) { return Box_Text(program.Settings.*box); },
            .Take =
                [box, absolute](Program& program, const QString& text, const QString& where) {
                    program.Settings.*box = Box_From_Text(text, Form_Place_Text(program), absolute, where);
                }};
}

Settings_Row Font_Row(const QString& section, std::int16_t Settings_State::*size)
{
    return {.Section = section,
            .Key = u"Set Font Size"_s,
            .Default = u"emptyvalue"_s,
            .Written = [size](const Program& program) { return QString::number(program.Settings.*size); },
            .Take = [size](Program& program, const QString& text,
                           const QString& where) { program.Settings.*size = Font_Size_From_Text(text, where); }};
}

Settings_Row Not_First_Run_Row(const QString& section, bool Settings_State::*flag)
{
    return {.Section = section,
            .Key = u"Not First Run"_s,
            .Default = u"emptyvalue"_s,
            .Written = [flag](const Program& program) { return Truth_Text(program.Settings.*flag); },
            .Take = [flag](Program& program, const QString& text,
                           const QString& where) { program.Settings.*flag = Truth_From_Text(text, where); }};
}

using Sticky_Text_Rule = QString (*)(const QString& text);

static QString As_It_Is(const QString& text)
{
    return text;
}

/// "no" or "yes" in any case, else the empty text.
static QString No_Or_Yes(const QString& text)
{
    const QString lowered = text.toLower();
    return lowered == u"no"_s || lowered == u"yes"_s ? lowered : QString();
}

std::vector<Settings_Row> Sticky_Rows(const QString& section, const QString& forced_word,
                                      StickyValues Settings_State::*values, WindowBox Settings_State::*box)
{
    std::vector<Settings_Row> rows;
    const auto add = [&](const QString& name, std::int16_t StickyValues::*flag, QString StickyValues::*text,
                         const QString& text_key, Sticky_Text_Rule rule, const QString& bad) {
        rows.push_back(
            {.Section = section,
             .Key = u"Sticky "_s + name,
             .Default = u"off"_s,
             .Written = [=](const Program& program) { return On_Off_Text(program.Settings.*values.*flag); },
             .Take = [=](Program& program, const QString& read,
                         const QString&) { program.Settings.*values.*flag = read.toLower() == u"on"_s ? 1 : 0; }});
        rows.push_back({.Section = section,
                        .Key = text_key,
                        .Default = bad,
                        .Written = [=](const Program& program) { return program.Settings.*values.*text; },
                        .Take =
                            [=](Program& program, const QString& read, const QString&) {
                                const QString taken = rule(read);
                                program.Settings.*values.*text = taken.isEmpty() ? bad : taken;
                            }});
    };
    add(u"Titles"_s, &StickyValues::Sticky_Titles, &StickyValues::Title, u"Title"_s, As_It_Is, {});
    add(u"Languages"_s, &StickyValues::Sticky_Languages, &StickyValues::Language, u"Language"_s, As_It_Is, {});
    add(u"Default"_s, &StickyValues::Sticky_Default, &StickyValues::Default, u"Default"_s, No_Or_Yes, {});
    add(u"Forced"_s, &StickyValues::Sticky_Forced, &StickyValues::Forced, u"Forced"_s, No_Or_Yes, forced_word);
    add(u"Delay"_s, &StickyValues::Sticky_Delay, &StickyValues::Delay, u"Delay"_s, Sticky_Delay_From_Text, {});
    rows.push_back(Box_Row(section, u"Window Size and Position (T,L,W,H,MM)"_s, box, true));
    return rows;
}

Settings_Row Extension_Row(const QString& key, bool Extension_Switches::*flag)
{
    const bool at_rest = Extension_Switches{}.*flag;
    return {
        .Section = u"Extensions"_s,
        .Key = key,
        .Default = *On_Off_Text(at_rest ? 1 : 0),
        .Written = [flag](const Program& program) { return On_Off_Text(program.Settings.Extensions.*flag ? 1 : 0); },
        .Take =
            [flag, at_rest](Program& program, const QString& text, const QString&) {
                const std::int16_t value = On_Off_Value(text);
                program.Settings.Extensions.*flag = value == 2 ? at_rest : value == 1;
            }};
}

Settings_Row Extension_Number_Row(const QString& key, int Extension_Switches::*number, int least, int most)
{
    const int at_rest = Extension_Switches{}.*number;
    return {
        .Section = u"Extensions"_s,
        .Key = key,
        .Default = QString::number(at_rest),
        .Written = [number](const Program& program) { return QString::number(program.Settings.Extensions.*number); },
        .Take =
            [=](Program& program, const QString& text, const QString&) {
                bool is_number = false;
                const int value = text.trimmed().toInt(&is_number);
                program.Settings.Extensions.*number = is_number && value >= least && value <= most ? value : at_rest;
            }};
}

Settings_Row Output_Exists_Row(const QString& key)
{
    static const QStringList words = {u"Replace"_s, u"Skip"_s, u"Number"_s};
    return {.Section = u"Extensions"_s,
            .Key = key,
            .Default = words.constFirst(),
            .Words = words,
            .Written =
                [](const Program& program) {
                    return words.at(static_cast<qsizetype>(program.Settings.Extensions.If_The_Output_Exists));
                },
            .Take =
                [](Program& program, const QString& text, const QString&) {
                    const auto word = std::find_if(words.begin(), words.end(), [&text](const QString& known) {
                        return known.compare(text.trimmed(), Qt::CaseInsensitive) == 0;
                    });
                    program.Settings.Extensions.If_The_Output_Exists =
                        word == words.end() ? Output_Exists::Replace : static_cast<Output_Exists>(word - words.begin());
                }};
}

Settings_Row Ignored(Settings_Row row)
{
    row.Used = Settings_Row::Use::Ignored;
    return row;
}

Settings_Row Unread(Settings_Row row)
{
    row.Used = Settings_Row::Use::Not_Read;
    row.Take = nullptr;
    return row;
}
