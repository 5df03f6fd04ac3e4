#include "settings/setting_texts.h"

#include "support/run_time_error.h"
#include "support/text.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

static const QString Reading = QStringLiteral("Reading the settings");
static const QString Advice =
    QStringLiteral("Put a number there, or move the file away: the program then writes a new one.");

std::int16_t On_Off_Value(const QString& text)
{
    const QString lowered = text.toLower();
    if (lowered == u"on"_s)
        return 1;
    return lowered == u"off"_s ? 0 : 2;
}

bool False_From_Text(const QString& text)
{
    return text.toLower() != u"false"_s;
}

std::int16_t Keep_Index(const QString& text)
{
    return text.toLower() == u"keep"_s ? 1 : 0;
}

QString Cut_Keep_Text(int index)
{
    return index == 1 ? u"Keep"_s : u"Cut"_s;
}

QString Truth_Text(bool value)
{
    return value ? u"True"_s : u"False"_s;
}

bool Truth_From_Text(const QString& text, const QString& where)
{
    const QString lowered = text.toLower();
    if (lowered == u"true"_s)
        return true;
    if (lowered == u"false"_s || text == u"emptyvalue"_s)
        return false;
    double value = 0;
    if (!Text_To_Number(text, value))
        throw Run_Time_Error(Error_Number::Type_Mismatch, Reading, where, text,
                             u"Put True or False there, or take the line out."_s);
    return value != 0;
}

QString Enabled_Text(const QString& truth)
{
    return Truth_From_Text(truth, {}) ? u"Enabled"_s : u"Disabled"_s;
}

bool Enabled_From_Text(const QString& text)
{
    // Deliberate: a lowered text never equals a word with a capital, so the state is always enabled. What disables
    // these boxes are the other settings.
    return text.toLower() != u"Disabled"_s;
}

double Setting_Number(const QString& text, const QString& where)
{
    double value = 0;
    if (!Text_To_Number(text, value))
        throw Run_Time_Error(Error_Number::Type_Mismatch, Reading, where, text, Advice);
    return value;
}

static std::int32_t Whole_Number(double value, const QString& text, const QString& where)
{
    const double rounded = std::nearbyint(value);
    if (std::abs(rounded) > std::numeric_limits<std::int32_t>::max())
        throw Run_Time_Error(Error_Number::Overflow, Reading, where, text, Advice);
    return static_cast<std::int32_t>(rounded);
}

std::int32_t Setting_Int32(const QString& text, const QString& where)
{
    return Whole_Number(Setting_Number(text, where), text, where);
}

std::int16_t Font_Size_From_Text(const QString& text, const QString& where)
{
    if (text == u"emptyvalue"_s)
        return 10;
    return static_cast<std::int16_t>(std::nearbyint(std::clamp(Setting_Number(text, where), 4.0, 41.0)));
}

QString Delay_From_Text(const QString& text)
{
    if (!Is_Signed_Number(text))
        return {};
    const double value = Number_Prefix(text);
    if (value > 99999)
        return u"99999"_s;
    return value < -99999 ? u"-99999"_s : text;
}

QString Sticky_Delay_From_Text(const QString& text)
{
    if (!Is_Digit_List(text))
        return {};
    QString digits = text.section(u',', 0, 0);
    while (digits.size() > 1 && digits.startsWith(u'0'))
        digits.remove(0, 1);
    return digits.isEmpty() ? u"0"_s : digits;
}

QString Split_Minutes_From_Text(const QString& text)
{
    const double minutes = Number_Prefix(text);
    return minutes >= 10 && minutes <= 999 ? text : u"30"_s;
}

QString Box_Text(const WindowBox& box)
{
    return u"%1:%2:%3:%4:%5"_s.arg(box.Top).arg(box.Left).arg(box.Width).arg(box.Height).arg(box.MM);
}

WindowBox Box_From_Text(const QString& text, const QString& missing, bool absolute, const QString& where)
{
    constexpr qsizetype field_count = 5;
    QStringList fields = Split_Text(text, u":"_s);
    if (fields.size() != field_count)
        fields = Split_Text(missing, u":"_s);
    const auto field = [&](qsizetype index, bool without_sign = false) {
        const double value = Setting_Number(fields.at(index), where);
        return Whole_Number(without_sign ? std::abs(value) : value, text, where);
    };
    double state = 0;
    const bool has_state = Text_To_Number(fields.at(4), state);
    WindowBox box{field(0, absolute), field(1, absolute), field(2), field(3), has_state ? field(4) : 0, false};
    box.HasBox = absolute && box.Height >= 2;
    return box;
}

std::optional<QString> Word_Of(const QStringList& words, int index)
{
    if (index < 0 || index >= words.size())
        return std::nullopt;
    return words.at(index);
}
