#pragma once

#include "state/settings_state.h"

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

/// Between the texts of the settings file and values. `where` names the file, section and key for an error.

/// 1 for "on", 0 for "off", in any case; 2 for anything else.
std::int16_t On_Off_Value(const QString& text);
/// False for "false" in any case, True for anything else, the empty text included.
bool False_From_Text(const QString& text);
/// 1 for "keep" in any case, else 0.
std::int16_t Keep_Index(const QString& text);
/// "Keep" for 1, else "Cut".
QString Cut_Keep_Text(int index);
/// "Enabled" for the text of a true value, else "Disabled".
QString Enabled_Text(const QString& truth);
/// Always true; see the comment in it.
bool Enabled_From_Text(const QString& text);
/// "True" or "False".
QString Truth_Text(bool value);
/// True, False (any case) or a number (0 is False); "emptyvalue" is False; error 13 for any other text.
bool Truth_From_Text(const QString& text, const QString& where);

/// The text as a number; error 13 that says where the text stands and what to do.
double Setting_Number(const QString& text, const QString& where);
/// The text as a whole number, halves rounded to even; error 13 or, outside 32 bits, error 6.
std::int32_t Setting_Int32(const QString& text, const QString& where);

/// A saved font size: 10 for "emptyvalue", else the number, but at least 4 and at most 41.
std::int16_t Font_Size_From_Text(const QString& text, const QString& where);

/// A delay that was saved: empty if the text is no signed number, else that text, held within -99999 and 99999.
QString Delay_From_Text(const QString& text);
/// The sticky delay: the number that the leading digits make, without zeros in front ("0" for the empty text); empty if
/// the text is no list of numbers.
QString Sticky_Delay_From_Text(const QString& text);
/// The minutes of a split: the text if the number at its start lies from 10 to 999, else "30".
QString Split_Minutes_From_Text(const QString& text);

/// T:L:W:H:MM of a form's place.
QString Box_Text(const WindowBox& box);
/// A place from T:L:W:H:MM; a text without exactly five fields counts as `missing`. Error 13 for a field that is no
/// number. With `absolute` Top and Left lose their sign, and HasBox tells whether Height is at least 2.
WindowBox Box_From_Text(const QString& text, const QString& missing, bool absolute, const QString& where);

/// `words[index]`; nothing outside the list.
std::optional<QString> Word_Of(const QStringList& words, int index);
