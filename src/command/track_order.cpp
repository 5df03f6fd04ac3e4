#include "command/track_order.h"

using namespace Qt::StringLiterals;

QString Source_Entries(const FileInfoList& streams, const QString& stream_type)
{
    QString entries;
    for (const FileInfo& stream : streams)
        if (stream.StreamType == stream_type)
            entries += u"0:"_s + stream.Index + u',';
    return entries;
}

QString Join_Order(const QStringList& pieces)
{
    QString order = pieces.join(u',');
    // One pass each. Deliberate: a comma at the start, where no video track is kept, stays.
    order.replace(u",,,,"_s, u","_s).replace(u",,,"_s, u","_s).replace(u",,"_s, u","_s);
    if (order.endsWith(u','))
        order.chop(1);
    return order;
}

QString Track_Order::Text() const
{
    return Join_Order({Video, Default_Audio, Source_Audio, Extra_Audio, Source_Subtitles, Extra_Subtitles});
}
