#include "support/console_text.h"

#include <algorithm>

const QString& Console_Text::Decode(QByteArrayView bytes)
{
    // Both texts keep their memory from chunk to chunk.
    decoded_.resize(decoder_.requiredSpace(bytes.size()));
    const QChar* const begin = decoded_.constData();
    const QChar* const end = decoder_.appendToBuffer(decoded_.data(), bytes);

    text_.resize(0);
    const QChar* from = begin;
    while (from != end) {
        const QChar* const feed = std::find(from, end, u'\n');
        text_.append(from, feed - from);
        if (feed == end)
            break;
        const bool returned = feed == begin ? after_return_ : feed[-1] == u'\r';
        text_.append(returned ? u"\n" : u"\r\n");
        from = feed + 1;
    }
    if (begin != end)
        after_return_ = end[-1] == u'\r';
    return text_;
}
