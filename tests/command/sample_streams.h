#pragma once

#include "state/media_state.h"

#include <QString>

/// Records as the parser makes them, for tests that start behind it.
inline FileInfo Stream(const QString& type, const QString& index, const QString& language = QStringLiteral("und"),
                       const QString& title = {}, const QString& is_default = QStringLiteral("0"),
                       const QString& is_forced = QStringLiteral("0"))
{
    FileInfo stream;
    stream.StreamType = type;
    stream.Index = index;
    stream.Language = language;
    stream.Title = title;
    stream.DefaultFlag = is_default;
    stream.ForcedFlag = is_forced;
    if (type == QStringLiteral("video")) {
        stream.Width = QStringLiteral("1920");
        stream.Height = QStringLiteral("1080");
    }
    return stream;
}
