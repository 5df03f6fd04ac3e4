#include "support/text.h"

#include "support/code_page.h"
#include "support/run_time_error.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

QStringList Split_Text(const QString& text, const QString& separator)
{
    return text.isEmpty() ? QStringList() : text.split(separator);
}

QString Piece_Of(const QString& text, QChar separator, int index)
{
    qsizetype start = 0;
    for (; index > 0; --index) {
        start = text.indexOf(separator, start) + 1;
        if (start == 0)
            return {};
    }
    const qsizetype end = text.indexOf(separator, start);
    return end < 0 ? text.mid(start) : text.mid(start, end - start);
}

QString Trim_Blanks(const QString& text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text.at(first) == u' ')
        ++first;
    while (last > first && text.at(last - 1) == u' ')
        --last;
    return text.mid(first, last - first);
}

QString Single_To_Text(float value)
{
    QString text = QString::number(static_cast<double>(value), 'G', 7);
    return text.replace(u"E+"_s, u"E"_s);
}

static bool Is_Digit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// Length of the longest start of `text`, from `start` on, that reads as a number; 0 if there is none.
static qsizetype Number_Length(const QString& text, qsizetype start)
{
    qsizetype at = start;
    const auto skip_digits = [&] {
        const qsizetype from = at;
        while (at < text.size() && Is_Digit(text.at(at)))
            ++at;
        return at - from;
    };
    if (at < text.size() && (text.at(at) == u'-' || text.at(at) == u'+'))
        ++at;
    qsizetype digits = skip_digits();
    if (at < text.size() && text.at(at) == u'.') {
        ++at;
        digits += skip_digits();
    }
    if (digits == 0)
        return 0;
    const qsizetype mantissa_end = at;
    if (at < text.size() && (text.at(at) == u'e' || text.at(at) == u'E')) {
        ++at;
        if (at < text.size() && (text.at(at) == u'-' || text.at(at) == u'+'))
            ++at;
        if (skip_digits() == 0)
            at = mantissa_end;
    }
    return at - start;
}

double Number_Prefix(const QString& text)
{
    qsizetype start = 0;
    while (start < text.size() && text.at(start) == u' ')
        ++start;
    return text.mid(start, Number_Length(text, start)).toDouble();
}

bool Text_To_Number(const QString& text, double& value)
{
    const QString trimmed = Trim_Blanks(text);
    const qsizetype length = Number_Length(trimmed, 0);
    if (length == 0 || length != trimmed.size())
        return false;
    value = trimmed.toDouble();
    return true;
}

double Require_Number(const QString& text, const QString& doing, const QString& subject)
{
    double value = 0;
    if (!Text_To_Number(text, value))
        Raise_Type_Mismatch(doing, subject, text);
    return value;
}

template <typename Integer>
static Integer Round_To(double value, const QString& doing)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        Raise_Overflow(doing);
    return static_cast<Integer>(rounded);
}

std::int16_t Round_To_Int16(double value, const QString& doing)
{
    return Round_To<std::int16_t>(value, doing);
}

std::int32_t Round_To_Int32(double value, const QString& doing)
{
    return Round_To<std::int32_t>(value, doing);
}

std::int16_t Checked_Int16(long long value, const QString& doing)
{
    return Round_To<std::int16_t>(static_cast<double>(value), doing);
}

QString Ascii_Lower(const QString& text)
{
    QString lowered = text;
    for (QChar& character : lowered)
        if (character >= u'A' && character <= u'Z')
            character = QChar(static_cast<char16_t>(character.unicode() + 32));
    return lowered;
}

int Count_Substring(const QString& text, const QString& part)
{
    // QString::count steps one character after each hit, as wanted, but counts an empty part everywhere.
    return text.isEmpty() || part.isEmpty() ? 0 : static_cast<int>(text.count(part));
}

QString Cut_At_Nul(const QString& text)
{
    const qsizetype nul = text.indexOf(QChar(u'\0'));
    return nul < 0 ? text : text.left(nul);
}

bool Is_All_Digits(const QString& text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), Is_Digit);
}

bool Is_Signed_Number(const QString& text)
{
    return Is_All_Digits(text.startsWith(u'-') ? text.mid(1) : text);
}

bool Is_Digit_List(const QString& text)
{
    const QStringList pieces = Split_Text(text, u","_s);
    return std::all_of(pieces.begin(), pieces.end(), Is_All_Digits);
}

QString Text_Of_Bytes(QByteArrayView bytes)
{
    return QUtf8StringView(bytes).isValidUtf8() ? QString::fromUtf8(bytes) : Text_In_Code_Page(bytes);
}

QString On_One_Line(QString text)
{
    return text.replace(Line_Break, u" "_s).replace(u'\r', u' ').replace(u'\n', u' ');
}
