#include "support/console_text.h"

#include <QStringView>

const QString& Console_Text::Decode(QByteArrayView bytes)
{
    // Both texts keep their memory from chunk to chunk.
    decoded_.resize(decoder_.requiredSpace(bytes.size()));
    const QChar* const begin = decoded_.constData();
    decoded_.resize(decoder_.appendToBuffer(decoded_.data(), bytes) - begin);

    const QStringView decoded = decoded_;
    const bool was_after_return = after_return_;
    if (!decoded.isEmpty())
        after_return_ = decoded.back() == u'\r';
    qsizetype feed = decoded.indexOf(u'\n');
    if (feed < 0)
        return decoded_;

    text_.resize(0);
    qsizetype from = 0;
    for (; feed >= 0; feed = decoded.indexOf(u'\n', from)) {
        text_.append(decoded.sliced(from, feed - from));
        const bool returned = feed == 0 ? was_after_return : decoded[feed - 1] == u'\r';
        text_.append(returned ? QStringView(u"\n") : QStringView(u"\r\n"));
        from = feed + 1;
    }
    text_.append(decoded.sliced(from));
    return text_;
}

void Console_Text::Skip(QByteArrayView bytes)
{
    constexpr qsizetype longest_character = 4;
    if (bytes.size() <= longest_character) {
        Decode(bytes);
        return;
    }
    // What the next chunk may join lies at the end: a carriage return, or a character that isn't complete. It begins
    // at the first byte there that doesn't continue another character.
    QByteArrayView tail = bytes.last(longest_character);
    while (!tail.isEmpty() && (static_cast<unsigned char>(tail.front()) & 0xC0U) == 0x80U)
        tail = tail.sliced(1);
    decoder_.resetState();
    after_return_ = false;
    Decode(tail);
}
