#pragma once

#include "settings/settings_rows.h"
#include "state/program.h"

#include <QStringList>

/// What rows of the settings file have in common: one function for each rule that several rows follow. Each makes a row
/// that knows the text for its field and the field for its text. `missing` is what a missing key reads as.

/// "On" or "Off" of a check box; any other word leaves the box neither ticked nor unticked.
Settings_Row Check_Row(const QString& section, const QString& key, Check_Box JobOptions::*box,
                       const QString& missing = QStringLiteral("off"));
/// "On" or "Off" of a check box; any word but on unticks. A missing key means on.
Settings_Row Plain_On_Row(const QString& section, const QString& key, Check_Box JobOptions::*box);
/// "yes" or "no", the word that a box carries in its tag. A missing key means yes.
Settings_Row Word_Row(const QString& section, const QString& key, Check_Box JobOptions::*box);
/// "Enabled" or "Disabled", the state of a check box.
Settings_Row Enabled_Row(const QString& section, const QString& key, Check_Box JobOptions::*box);
/// "True" or "False"; any word but false is True.
Settings_Row Truth_Row(const QString& section, const QString& key, const QString& missing, bool JobOptions::*flag);
/// A text as it is.
Settings_Row Text_Row(const QString& section, const QString& key, QString JobOptions::*text);
/// A folder of the section "Paths".
Settings_Row Folder_Row(const QString& key, QString JobOptions::*path);
/// One of three words for a kind 0, 1 or 2; any other word is kind 0.
Settings_Row Kind_Row(const QString& section, const QString& key, const QString& missing,
                      std::int16_t JobOptions::*kind, const QStringList& words);
/// A text with a word that stands for the empty text; lower-cased when read.
Settings_Row Value_Row(const QString& section, const QString& key, const QString& empty_word,
                       QString JobOptions::*text);
/// "If Empty" or "Force" of a pair of option buttons.
Settings_Row Choice_Row(const QString& section, const QString& key, Option_Pair JobOptions::*pair);

/// A filter's list of languages; `empty_word` is written for no list, and "none" in any case is read as no list.
Settings_Row Languages_Row(const QString& section, const QString& key, const QString& empty_word,
                           FilterSettings JobOptions::*filter);
/// "Cut" or "Keep" of a filter.
Settings_Row Keep_Row(const QString& section, const QString& key, FilterSettings JobOptions::*filter);
/// The place of a filter's form, T:L:W:H:0.
Settings_Row Filter_Box_Row(const QString& section, const QString& key, FilterSettings JobOptions::*filter);

/// A number of the main form's place; `is_position`: a negative one is written as 0.
Settings_Row Place_Row(const QString& key, int Form_Place::*number, bool is_position);
/// The place of a secondary form. `absolute`: Top and Left lose their sign and HasBox is set.
Settings_Row Box_Row(const QString& section, const QString& key, WindowBox Settings_State::*box, bool absolute);
Settings_Row Font_Row(const QString& section, std::int16_t Settings_State::*size);
Settings_Row Not_First_Run_Row(const QString& section, bool Settings_State::*flag);

/// The ten rows of the sticky values and the place of the option file editor. `forced_word` is what a missing or bad
/// "Forced" becomes.
std::vector<Settings_Row> Sticky_Rows(const QString& section, const QString& forced_word,
                                      StickyValues Settings_State::*values, WindowBox Settings_State::*box);

/// "On" or "Off" of one of the additions; any other word leaves the default.
Settings_Row Extension_Row(const QString& key, bool Extension_Switches::*flag);

/// A whole number of one of the additions, from `least` to `most`; anything else leaves the default.
Settings_Row Extension_Number_Row(const QString& key, int Extension_Switches::*number, int least, int most);

/// "Replace", "Skip" or "Number"; any other word is Replace.
Settings_Row Output_Exists_Row(const QString& key);

/// The row, read and without effect.
Settings_Row Ignored(Settings_Row row);
/// The row, written and never read.
Settings_Row Unread(Settings_Row row);

/// "Off" for 0, "On" for 1, nothing for any other value.
std::optional<QString> On_Off_Text(int value);
/// The captions of lbl_ChapsFormat by index.
const QStringList& Chapter_Formats();
/// `path` as it is stored: empty if it would read back as another one (a line break in it, or too long).
QString Storable_Path(const QString& path);
