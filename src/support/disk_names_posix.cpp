#include "support/disk_names.h"

#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr char16_t First_Stand_In = 0xDC80; ///< for the byte 0x80: the bytes below are valid by themselves
static constexpr char16_t Last_Stand_In = 0xDCFF;

/// True for a stand-in at that place; a low surrogate behind a high one is half of a character.
static bool Is_Stand_In(const QString& text, qsizetype at)
{
    const char16_t letter = text[at].unicode();
    return letter >= First_Stand_In && letter <= Last_Stand_In && (at == 0 || !text[at - 1].isHighSurrogate());
}

/// Length of the UTF-8 sequence at the start of the bytes; 0 if there is none.
static qsizetype Valid_Length(QByteArrayView bytes)
{
    for (qsizetype length = 1; length <= std::min<qsizetype>(4, bytes.size()); ++length)
        if (QUtf8StringView(bytes.data(), length).isValidUtf8())
            return length;
    return 0;
}

QString Text_Of_Name(const QByteArray& bytes)
{
    if (QUtf8StringView(bytes).isValidUtf8())
        return QFile::decodeName(bytes);
    QString text;
    for (QByteArrayView rest = bytes; !rest.isEmpty();) {
        const qsizetype length = Valid_Length(rest);
        if (length > 0)
            text += QString::fromUtf8(rest.first(length));
        else
            text += QChar(static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(rest.front())));
        rest = rest.sliced(std::max<qsizetype>(length, 1));
    }
    return text;
}

bool Has_Stand_Ins(const QString& text)
{
    for (qsizetype at = 0; at < text.size(); ++at)
        if (Is_Stand_In(text, at))
            return true;
    return false;
}

QByteArray Bytes_Of_Name(const QString& text)
{
    if (!Has_Stand_Ins(text))
        return QFile::encodeName(text);
    QByteArray bytes;
    qsizetype valid_from = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!Is_Stand_In(text, at))
            continue;
        bytes += text.sliced(valid_from, at - valid_from).toUtf8();
        bytes += static_cast<char>(text[at].unicode() - 0xDC00);
        valid_from = at + 1;
    }
    return bytes + text.sliced(valid_from).toUtf8();
}

QString Stand_In_Shown(QChar letter)
{
    return u"\\x"_s + QString::number(letter.unicode() - 0xDC00, 16).toUpper();
}

std::filesystem::path Native_Path(const QString& path)
{
    return Bytes_Of_Name(path).toStdString();
}

qsizetype Length_On_Disk(const QString& name)
{
    return Bytes_Of_Name(name).size();
}

QString Why_Not_A_Name(const QString&)
{
    return {};
}
