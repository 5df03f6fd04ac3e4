#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

/// Where the language of an added file is from.
enum class Language_Origin : std::uint8_t
{
    Nowhere,
    The_File, ///< its own tag, or an ".idx" file's "id:" line
    Option_File,
    Sticky_Value,
    Its_Name
};

/// One external audio or subtitle file that goes with a video.
struct ExternalTrack
{
    std::int16_t OptionStatus = 0; ///< outcome of the option file step, 0 to 5
    bool InUse = false;            ///< a list whose first record isn't in use is empty
    bool IsIdxPair = false;        ///< came from an ".idx" file
    bool HasSubFile = false;       ///< the ".idx" file's ".sub" was found
    bool OptionFileUsed = false;   ///< an option file was read and applied
    bool Literal = false;          ///< the title is as the file has it: nothing in it is escaped
    bool Default_Chosen = false;   ///< an option file or a sticky value says what DefaultFlag is
    bool Forced_Chosen = false;    ///< the same of ForcedFlag
    bool Hearing_Impaired = false; ///< its name says so
    Language_Origin Language_From = Language_Origin::Nowhere;
    QString Title;
    QString Language;
    QString DefaultFlag;
    QString ForcedFlag;
    QString Delay;  ///< milliseconds
    QString Folder; ///< searched folder, ending in a separator
    QString FileName;
    std::int16_t FileIndex = 0; ///< place in the matched list, from 0
    std::int16_t TrackId = 0;   ///< always 0
    QStringList Flags_Of_Name;  ///< those that its name gave it, in words
};

/// One file to attach.
struct Attachment
{
    QString Name;
    QString MimeType;
    QString FullPath;
};

/// A list that is never without an entry: it begins as one empty record, and each later one is added when the last is
/// in use.
using ExternalTrackList = std::vector<ExternalTrack>;
using AttachmentList = std::vector<Attachment>;

/// What was found beside the video in work. Reset by its users, file by file.
struct Companions
{
    ExternalTrackList External_Audio{1};
    ExternalTrackList External_Subtitles{1};
    ExternalTrackList External_Subtitles_Unpaired{1};
    AttachmentList Attachment_List{1};
    QString Chapter_File; ///< replacement chapter file of this video; empty: none
};
