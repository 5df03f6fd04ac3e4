#include "support/disk_names.h"

#include "support/long_path.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// A half of a character by itself, at that place.
static bool Is_Lone_Half(const QString& text, qsizetype at)
{
    if (text[at].isHighSurrogate())
        return at + 1 == text.size() || !text[at + 1].isLowSurrogate();
    return text[at].isLowSurrogate() && (at == 0 || !text[at - 1].isHighSurrogate());
}

bool Has_Stand_Ins(const QString& text)
{
    for (qsizetype at = 0; at < text.size(); ++at)
        if (text[at].isSurrogate() && Is_Lone_Half(text, at))
            return true;
    return false;
}

/// A lone half gets the three bytes that UTF-8 would have for its number.
QByteArray Bytes_Of_Name(const QString& text)
{
    if (!Has_Stand_Ins(text))
        return text.toUtf8();
    QByteArray bytes;
    qsizetype valid_from = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!text[at].isSurrogate() || !Is_Lone_Half(text, at))
            continue;
        bytes += text.sliced(valid_from, at - valid_from).toUtf8();
        const unsigned half = text[at].unicode();
        for (const unsigned byte : {0xE0U | half >> 12U, 0x80U | (half >> 6U & 0x3FU), 0x80U | (half & 0x3FU)})
            bytes += static_cast<char>(byte);
        valid_from = at + 1;
    }
    return bytes + text.sliced(valid_from).toUtf8();
}

QString Text_Of_Name(const QByteArray& bytes)
{
    QString text;
    qsizetype valid_from = 0;
    const auto byte_at = [&](qsizetype at) { return static_cast<unsigned char>(bytes[at]); };
    for (qsizetype at = 0; at + 2 < bytes.size(); ++at) {
        if (byte_at(at) != 0xEDU || byte_at(at + 1) < 0xA0U || byte_at(at + 1) > 0xBFU)
            continue;
        text += QString::fromUtf8(bytes.sliced(valid_from, at - valid_from));
        const unsigned half = 0xD000U | (byte_at(at + 1) & 0x3FU) << 6U | (byte_at(at + 2) & 0x3FU);
        text += QChar(static_cast<char16_t>(half));
        at += 2;
        valid_from = at + 1;
    }
    return text + QString::fromUtf8(bytes.sliced(std::min(valid_from, bytes.size())));
}

QString Stand_In_Shown(QChar letter)
{
    return u"\\u"_s + QString::number(letter.unicode(), 16).toUpper();
}

std::filesystem::path Native_Path(const QString& path)
{
    return Long_Path(path).toStdWString();
}

qsizetype Length_On_Disk(const QString& name)
{
    return name.size();
}

QString Why_Not_A_Name(const QString& name)
{
    return Why_Windows_Refuses(name);
}
