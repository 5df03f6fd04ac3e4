#pragma once

#include "state/media_state.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <map>

/// The tracks of one video or of several as a table, a row for each, with what is unlike the other videos marked: "why
/// is E07 another?"

enum class Track_Column : std::uint8_t
{
    Video_Name,
    Id,
    Type,
    Codec,
    Language,
    Name,
    Default,
    Forced,
    Channels_Or_Size,
    Bitrate
};
inline constexpr std::size_t Track_Column_Count = 10;

using Track_Cells = std::array<QString, Track_Column_Count>;

/// A track as the table has it. Its cells are one line each and can't mislead.
struct Table_Track
{
    Track_Cells Cells;
    double Bits = 0; ///< a second; 0: not known
};

/// What the tools said of one video.
struct Asked_Video
{
    QString Name;                    ///< as it is shown
    QString Why_Not;                 ///< why its tracks aren't known, in words
    QStringList Notes;               ///< what is odd about it, in words
    std::vector<Table_Track> Tracks; ///< in their order
};

/// What the probe of a video brought; the first record is the file's own.
Asked_Video Table_Video(const QString& name, const FileInfoList& streams);

struct Track_Row
{
    enum class Kind : std::uint8_t
    {
        Track,
        Missing, ///< the others have a track that this video hasn't
        Note,    ///< words about the video
        Why_Not  ///< the video can't be read
    };
    Kind What = Kind::Track;
    std::size_t Video = 0;
    std::size_t Number = 0; ///< of its track, or of its note
    std::size_t Slot = 0;   ///< which track of the videos it is to be compared with
    std::bitset<Track_Column_Count> Differs;
};

/// The same track in all videos: the second sound of each, the font of that name.
struct Track_Slot
{
    QString Caption;   ///< "audio 2"
    Track_Cells Usual; ///< what most have; of two alike in number the first one's
    double Bits = 0;   ///< the middle one of their bitrates; 0: not known
};

struct Track_Table
{
    std::vector<const Asked_Video*> Videos;
    std::vector<Track_Row> Rows; ///< by video
    std::vector<Track_Slot> Slots;
    std::uint64_t Stamp = 0; ///< another one whenever the table was filled
};

/// Fills the table from its Videos. Compared is each track with the same one of the others: an attachment by its name,
/// any other by its place among those of its type. A bitrate differs by half as much again or more. A track that half
/// of the videos haven't differs as a whole.
void Compare_Tracks(Track_Table& table);

/// "Type", "Channels or Size": the head of a column.
QString Column_Head(Track_Column column);
/// A cell's text, one line; a mark is ahead of what differs. Words about a video stand in the column of the type.
QString Cell_Text(const Track_Table& table, const Track_Row& row, Track_Column column);
/// What most have where the cell differs, and the text of a cell that may be too narrow for it.
QString Cell_Hint(const Track_Table& table, const Track_Row& row, Track_Column column);

/// "24 videos; 2 differ: E07.mkv, E12.mkv". Empty for a single one that can be read.
QString Table_Summary(const Track_Table& table);
