#pragma once

#include <QString>
#include <cstdint>
#include <vector>

/// One external audio or subtitle file that goes with a video.
struct ExternalTrack
{
    std::int16_t OptionStatus = 0; ///< outcome of the option file step, 0 to 5
    bool InUse = false;            ///< a list whose first record isn't in use is empty
    bool IsIdxPair = false;        ///< came from an ".idx" file
    bool HasSubFile = false;       ///< the ".idx" file's ".sub" was found
    bool OptionFileUsed = false;   ///< an option file was read and applied
    bool Literal = false;          ///< the title is as the file has it: nothing in it is escaped
    QString Title;
    QString Language;
    QString DefaultFlag;
    QString ForcedFlag;
    QString Delay;  ///< milliseconds
    QString Folder; ///< searched folder, ending in a separator
    QString FileName;
    std::int16_t FileIndex = 0; ///< place in the matched list, from 0
    std::int16_t TrackId = 0;   ///< always 0
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
