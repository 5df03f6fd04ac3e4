#include "support/shown_text.h"

#include "support/disk_names.h"

using namespace Qt::StringLiterals;

static bool Turns_Direction(char16_t code)
{
    return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

static bool Ends_Line(char16_t code)
{
    return (code >= u'\n' && code <= u'\r') || code == 0x0085 || code == 0x2028 || code == 0x2029;
}

bool Can_Mislead(QChar letter)
{
    return letter.category() == QChar::Other_Control || Ends_Line(letter.unicode()) ||
           Turns_Direction(letter.unicode());
}

static QString Written_Out(char16_t code)
{
    switch (code) {
    case u'\n':
        return u"\\n"_s;
    case u'\r':
        return u"\\r"_s;
    case u'\t':
        return u"\\t"_s;
    default:
        return code < 0x80 ? u"\\x%1"_s.arg(QString::number(code, 16).toUpper(), 2, u'0')
                           : u"\\u%1"_s.arg(QString::number(code, 16).toUpper(), 4, u'0');
    }
}

QString Bytes_Shown(const QString& text)
{
    if (!Has_Stand_Ins(text))
        return text;
    QString shown;
    for (qsizetype at = 0; at < text.size(); ++at) {
        // What stands alone is a stand-in; the halves of a character come in pairs.
        const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (pair)
            shown += text[at++];
        shown += !pair && Has_Stand_Ins(text[at]) ? Stand_In_Shown(text[at]) : QString(text[at]);
    }
    return shown;
}

template <typename Matches>
static QString Shown(const QString& text, Matches matches)
{
    QString shown;
    for (const QChar letter : Bytes_Shown(text))
        if (matches(letter))
            shown += Written_Out(letter.unicode());
        else
            shown += letter;
    return shown;
}

QString As_One_Line(const QString& text)
{
    return Shown(text, [](QChar letter) { return Ends_Line(letter.unicode()); });
}

QString Printable(const QString& text)
{
    return Shown(text, Can_Mislead);
}
