#include "tools/message_lines.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr qsizetype Longest_Line = 1000; ///< bytes of a line that are kept
static constexpr qsizetype Most_Warnings = 100;

void Message_Lines::Take(QByteArrayView bytes)
{
    for (const char byte : bytes) {
        if (byte == '\n' || byte == '\r')
            Close_Line();
        else if (line_.size() < Longest_Line)
            line_ += byte;
    }
}

void Message_Lines::Close_Line()
{
    const QByteArray line = line_.trimmed();
    line_.clear();
    if (line.isEmpty() || line.startsWith("Progress:"))
        return;
    // A character that was cut at the longest length becomes U+FFFD.
    const QString text = QString::fromUtf8(line);
    Last_Line = text;
    if (line.startsWith("Error:") && First_Error.isEmpty())
        First_Error = text.mid(6).trimmed();
    else if (line.startsWith("Warning:") && Warnings.size() < Most_Warnings)
        Warnings += text.mid(8).trimmed();
}
