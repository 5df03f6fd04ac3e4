#include "workbenches/track_table.h"

#include "support/shown_text.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

static constexpr double Alike_Bits = 1.5;
static const QString Differs_Mark = QStringLiteral("\u2260 ");
static const QString Attachment = QStringLiteral("attachment");

static std::size_t At(Track_Column column)
{
    return static_cast<std::size_t>(column);
}

static QString Yes_Or_No(const QString& flag)
{
    return flag == "1"_L1 ? u"Yes"_s : flag == "0"_L1 ? u"No"_s : QString();
}

static QString Bits_Text(double bits)
{
    return bits > 0 ? u"%1 kb/s"_s.arg(std::round(bits / 1000), 0, 'f', 0) : QString();
}

static QString Channels_Or_Size(const FileInfo& stream)
{
    if (stream.StreamType == "audio"_L1)
        return stream.Channels.isEmpty() ? QString() : stream.Channels + u" ch"_s;
    const bool known = stream.Width.toInt() > 0 && stream.Height.toInt() > 0;
    return known ? stream.Width + u'x' + stream.Height : QString();
}

static Table_Track Track_Of(const FileInfo& stream)
{
    const bool is_track = stream.StreamType != Attachment;
    Table_Track track;
    track.Bits = std::max(0.0, stream.BitRate.toDouble());
    // Neither number nor flags of an attachment are those of a track.
    track.Cells = {QString(),
                   is_track ? stream.Index : QString(),
                   stream.StreamType,
                   stream.CodecName,
                   is_track ? stream.Language : QString(),
                   stream.Title.isEmpty() ? stream.FileName : stream.Title,
                   is_track ? Yes_Or_No(stream.DefaultFlag) : QString(),
                   is_track ? Yes_Or_No(stream.ForcedFlag) : QString(),
                   Channels_Or_Size(stream),
                   Bits_Text(track.Bits)};
    for (QString& cell : track.Cells)
        cell = Printable(cell);
    return track;
}

Asked_Video Table_Video(const QString& name, const FileInfoList& streams)
{
    Asked_Video video{.Name = Printable(name), .Why_Not = {}, .Notes = {}, .Tracks = {}};
    for (auto stream = streams.begin() + 1; stream != streams.end(); ++stream)
        if (!stream->StreamType.isEmpty())
            video.Tracks.push_back(Track_Of(*stream));
    return video;
}

namespace {

/// Counts what the videos have in a slot.
struct Slot_Count
{
    std::size_t Videos = 0;
    std::array<QHash<QString, int>, Track_Column_Count> Values;
    std::vector<double> Bits;
};

/// Finds the own_slots of the videos' tracks, and what is usual in them.
class Slot_Finder
{
  public:
    explicit Slot_Finder(Track_Table& table) : table_(table) {}

    /// The slot of each track of a video.
    std::vector<std::size_t> Slots_Of(const Asked_Video& video)
    {
        QHash<QString, int> places;
        std::vector<std::size_t> own_slots;
        for (const Table_Track& track : video.Tracks) {
            const QString& type = track.Cells[At(Track_Column::Type)];
            const QString& name = track.Cells[At(Track_Column::Name)];
            const QString kind = type == Attachment ? type + u' ' + name : type;
            const int place = ++places[kind];
            const QString key = kind + u'\n' + QString::number(place);
            const QString caption = type == Attachment ? kind.trimmed() : u"%1 %2"_s.arg(type).arg(place);
            own_slots.push_back(Slot_At(key, caption));
        }
        return own_slots;
    }

    void Count(const Asked_Video& video, const std::vector<std::size_t>& own_slots)
    {
        for (std::size_t number = 0; number < own_slots.size(); ++number) {
            const Table_Track& track = video.Tracks[number];
            Slot_Count& count = counts_[own_slots[number]];
            Track_Slot& slot = table_.Slots[own_slots[number]];
            ++count.Videos;
            if (track.Bits > 0)
                count.Bits.push_back(track.Bits);
            for (std::size_t column = 0; column < Track_Column_Count; ++column) {
                const int same = ++count.Values[column][track.Cells[column]];
                if (same > count.Values[column].value(slot.Usual[column]))
                    slot.Usual[column] = track.Cells[column];
            }
        }
    }

    /// The usual value is the first that came to that number while counting; the bitrate is the middle one.
    void Finish()
    {
        for (std::size_t at = 0; at < counts_.size(); ++at) {
            std::vector<double>& bits = counts_[at].Bits;
            if (bits.empty())
                continue;
            const auto middle = bits.begin() + static_cast<std::ptrdiff_t>(bits.size() / 2);
            std::nth_element(bits.begin(), middle, bits.end());
            table_.Slots[at].Bits = *middle;
            table_.Slots[at].Usual[At(Track_Column::Bitrate)] = Bits_Text(*middle);
        }
    }

    std::size_t Videos_With(std::size_t slot) const { return counts_[slot].Videos; }

  private:
    std::size_t Slot_At(const QString& key, const QString& caption)
    {
        const auto known = numbers_.constFind(key);
        if (known != numbers_.constEnd())
            return *known;
        table_.Slots.push_back({.Caption = caption, .Usual = {}, .Bits = 0});
        counts_.emplace_back();
        numbers_.insert(key, counts_.size() - 1);
        return counts_.size() - 1;
    }

    Track_Table& table_;
    QHash<QString, std::size_t> numbers_;
    std::vector<Slot_Count> counts_;
};

} // namespace

static std::bitset<Track_Column_Count> Differences(const Table_Track& track, const Track_Slot& slot)
{
    std::bitset<Track_Column_Count> differs;
    for (std::size_t column = At(Track_Column::Id); column < At(Track_Column::Bitrate); ++column)
        differs[column] = track.Cells[column] != slot.Usual[column];
    differs[At(Track_Column::Bitrate)] =
        track.Bits > 0 && (track.Bits > slot.Bits * Alike_Bits || track.Bits * Alike_Bits < slot.Bits);
    return differs;
}

static void Add_Rows_Of(Track_Table& table, std::size_t number, const std::vector<std::size_t>& own_slots,
                        const std::vector<std::size_t>& usual_slots, const auto& is_usual)
{
    const Asked_Video& video = *table.Videos[number];
    if (!video.Why_Not.isEmpty())
        return table.Rows.push_back({.What = Track_Row::Kind::Why_Not, .Video = number, .Differs = {}});
    for (std::size_t track = 0; track < own_slots.size(); ++track) {
        Track_Row row{.Video = number, .Number = track, .Slot = own_slots[track], .Differs = {}};
        if (table.Videos.size() > 1)
            row.Differs = Differences(video.Tracks[track], table.Slots[own_slots[track]]);
        if (!is_usual(own_slots[track]))
            row.Differs[At(Track_Column::Type)] = true;
        table.Rows.push_back(row);
    }
    const QSet<std::size_t> has(own_slots.begin(), own_slots.end());
    for (const std::size_t slot : usual_slots)
        if (!has.contains(slot)) {
            table.Rows.push_back({.What = Track_Row::Kind::Missing, .Video = number, .Slot = slot, .Differs = {}});
            table.Rows.back().Differs[At(Track_Column::Type)] = true;
        }
    for (qsizetype note = 0; note < video.Notes.size(); ++note)
        table.Rows.push_back(
            {.What = Track_Row::Kind::Note, .Video = number, .Number = static_cast<std::size_t>(note), .Differs = {}});
}

void Compare_Tracks(Track_Table& table)
{
    table.Rows.clear();
    table.Slots.clear();
    ++table.Stamp;
    Slot_Finder finder(table);
    std::vector<std::vector<std::size_t>> own_slots;
    std::size_t readable = 0;
    for (const Asked_Video* video : table.Videos) {
        own_slots.push_back(finder.Slots_Of(*video));
        finder.Count(*video, own_slots.back());
        readable += video->Why_Not.isEmpty() ? 1 : 0;
    }
    finder.Finish();
    const auto is_usual = [&](std::size_t slot) { return readable < 2 || finder.Videos_With(slot) * 2 > readable; };
    std::vector<std::size_t> usual_slots;
    for (std::size_t slot = 0; slot < table.Slots.size(); ++slot)
        if (is_usual(slot))
            usual_slots.push_back(slot);
    for (std::size_t number = 0; number < table.Videos.size(); ++number)
        Add_Rows_Of(table, number, own_slots[number], usual_slots, is_usual);
}

QString Column_Head(Track_Column column)
{
    static const std::array<QString, Track_Column_Count> heads = {u"Video"_s,   u"ID"_s,       u"Type"_s,
                                                                  u"Codec"_s,   u"Language"_s, u"Name"_s,
                                                                  u"Default"_s, u"Forced"_s,   u"Channels or Size"_s,
                                                                  u"Bitrate"_s};
    return heads[At(column)];
}

QString Cell_Text(const Track_Table& table, const Track_Row& row, Track_Column column)
{
    const Asked_Video& video = *table.Videos[row.Video];
    if (column == Track_Column::Video_Name)
        return video.Name;
    const bool words = column == Track_Column::Type;
    switch (row.What) {
    case Track_Row::Kind::Why_Not:
        return words ? Printable(video.Why_Not) : QString();
    case Track_Row::Kind::Note:
        return words ? Printable(video.Notes.value(static_cast<qsizetype>(row.Number))) : QString();
    case Track_Row::Kind::Missing:
        return words ? Differs_Mark + u"no "_s + table.Slots[row.Slot].Caption : QString();
    case Track_Row::Kind::Track:
        break;
    }
    const QString& text = video.Tracks[row.Number].Cells[At(column)];
    return row.Differs[At(column)] ? Differs_Mark + (text.isEmpty() ? u"none"_s : text) : text;
}

QString Cell_Hint(const Track_Table& table, const Track_Row& row, Track_Column column)
{
    QString text = Cell_Text(table, row, column);
    if (row.What != Track_Row::Kind::Track || !row.Differs[At(column)])
        return text;
    const QString& usual = table.Slots[row.Slot].Usual[At(column)];
    const bool extra =
        column == Track_Column::Type && usual == table.Videos[row.Video]->Tracks[row.Number].Cells[At(column)];
    return text + u" (usual: "_s + (extra ? u"no such track"_s : usual.isEmpty() ? u"none"_s : usual) + u')';
}

QString Table_Summary(const Track_Table& table)
{
    QStringList differ;
    QStringList unread;
    for (const Track_Row& row : table.Rows) {
        const QString& name = table.Videos[row.Video]->Name;
        QStringList& names = row.What == Track_Row::Kind::Why_Not ? unread : differ;
        if ((row.Differs.any() || &names == &unread) && (names.isEmpty() || names.constLast() != name))
            names += name;
    }
    const auto part = [](const QStringList& names, const QString& what) {
        return names.isEmpty() ? QString() : u"; %1 %2: "_s.arg(names.size()).arg(what) + names.join(u", "_s);
    };
    const QString odd =
        part(differ, differ.size() == 1 ? u"differs"_s : u"differ"_s) + part(unread, u"can't be read"_s);
    if (table.Videos.size() < 2)
        return odd.sliced(std::min<qsizetype>(2, odd.size()));
    return u"%1 videos"_s.arg(table.Videos.size()) + (odd.isEmpty() ? u" with the same tracks"_s : odd);
}
