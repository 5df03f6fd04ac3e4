#include "inspect/track_numbers.h"

#include "support/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

bool Numbers_Are_Alike(const QString& path)
{
    const QString extension = Get_Extension(path).toLower();
    return extension == "mkv"_L1 || extension == "webm"_L1 || extension == "ogv"_L1;
}

/// True if ffprobe's id of a stream and mkvmerge's number of a track are the same track's. In a program stream ffprobe
/// gives the whole start code (0x1e0) or, behind a private one, the number within it (0x80); mkvmerge the start code's
/// last byte, and the number within it in the upper half.
static bool Is_Same_Number(const QString& stream_id, const std::optional<std::uint64_t>& number)
{
    bool known = false;
    const std::uint64_t id = stream_id.toULongLong(&known, 0);
    if (!known || !number)
        return false;
    constexpr std::uint64_t private_stream = 0xBD;
    const bool within_private = (*number & 0xFFFFFFFFU) == private_stream && (*number >> 32U) == id;
    return *number == id || (id >> 8U == 1 && *number == (id & 0xFFU)) || within_private;
}

/// What mkvmerge calls a stream's type; empty for a record that is no track.
static QString Track_Type(const FileInfo& stream)
{
    if (stream.StreamType == "subtitle"_L1)
        return u"subtitles"_s;
    return stream.StreamType == "video"_L1 || stream.StreamType == "audio"_L1 ? stream.StreamType : QString();
}

/// The streams and tracks that have found each other.
struct Partners
{
    std::vector<const Identified_Track*> Of_Stream; ///< null: none yet
    std::vector<bool> Track_Taken;
};

/// Gives each stream without a partner the first free track of its type that `fits`.
template <typename Fits>
static void Pair(const FileInfoList& streams, const Identified_File& identified, Partners& partners, Fits fits)
{
    for (std::size_t s = 0; s < streams.size(); ++s)
        for (std::size_t t = 0; t < identified.Tracks.size() && partners.Of_Stream[s] == nullptr; ++t) {
            const Identified_Track& track = identified.Tracks[t];
            if (partners.Track_Taken[t] || track.Type != Track_Type(streams[s]) || !fits(streams[s], track))
                continue;
            partners.Of_Stream[s] = &track;
            partners.Track_Taken[t] = true;
        }
}

static QString Kind_And_Codec(const QString& kind, const QString& codec)
{
    return codec.isEmpty() ? kind : kind + u", "_s + codec;
}

QStringList Take_Mkvmerge_Numbers(FileInfoList& streams, const Identified_File& identified)
{
    Partners partners{.Of_Stream = std::vector<const Identified_Track*>(streams.size()),
                      .Track_Taken = std::vector<bool>(identified.Tracks.size())};
    Pair(streams, identified, partners,
         [](const FileInfo& stream, const Identified_Track& track) { return Is_Same_Number(stream.Id, track.Number); });
    Pair(streams, identified, partners, [](const FileInfo&, const Identified_Track&) { return true; });

    QStringList warnings;
    for (std::size_t s = 0; s < streams.size(); ++s) {
        FileInfo& stream = streams[s];
        if (Track_Type(stream).isEmpty())
            continue;
        if (partners.Of_Stream[s] != nullptr) {
            stream.Index = QString::number(partners.Of_Stream[s]->Id);
            continue;
        }
        warnings += u"mkvmerge can't read stream %1 (%2): it will be missing"_s.arg(
            stream.Index, Kind_And_Codec(stream.StreamType, stream.CodecName));
        stream.StreamType.clear();
    }
    for (std::size_t t = 0; t < identified.Tracks.size(); ++t)
        if (!partners.Track_Taken[t])
            warnings += u"ffprobe doesn't know mkvmerge's track %1 (%2): no option reaches it"_s.arg(
                QString::number(identified.Tracks[t].Id),
                Kind_And_Codec(identified.Tracks[t].Type, identified.Tracks[t].Codec));
    return warnings;
}
