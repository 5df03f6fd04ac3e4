#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// Text kept of one stream, or of the file as a whole, as ffprobe printed it: numbers and flags stay digits, an absent
/// key leaves its field empty.
struct FileInfo
{
    QString FileName;    ///< file record: the path as ffprobe echoes it; an attachment's name where read as JSON
    QString Title;       ///< title tag
    QString Duration;    ///< file record: seconds with fraction; streams too where the probe was read as JSON
    QString StreamType;  ///< "video", "audio", "subtitle", "attachment" or "File_Info"; empty: slot not used, track out
    QString CodecName;   ///< streams
    QString Index;       ///< streams: ffprobe's index, which is the track id on mkvmerge's command line
    QString Language;    ///< "und" where there is none
    QString DefaultFlag; ///< streams: "0" or "1"
    QString ForcedFlag;  ///< streams: "0" or "1"
    QString Height;      ///< video, subtitle, attachment: pixels
    QString Width;       ///< video, subtitle, attachment: pixels
    QString AttachedPic; ///< streams: "0" or "1"
    QString FrameRate;   ///< video, subtitle: a fraction
    QString FormatName;  ///< file record: container names
    QString Size;        ///< file record: bytes
    QString BitRate;     ///< file record: bits per second; streams too where the probe was read as JSON
    QString Encoder;     ///< file record: muxing application

    QString SampleAspect = {}; ///< video: "1:1", "16:15"
    // Filled where the probe was read as JSON only.
    QString Id = {};       ///< streams: the container's own number of the track ("0x1e0")
    QString Channels = {}; ///< audio: how many
    bool Literal = false;  ///< the texts are as the file has them: nothing in them is escaped
};

/// The records of the one file in work; element 0 is the file record. Never without an entry.
using FileInfoList = std::vector<FileInfo>;

/// What one ffprobe run said about an external file. Forced and Default: "No", "Yes" or "".
struct ExtStreamInfo
{
    QString SourceText;
    QString HandlerName;
    QString Language;
    QString Forced;
    QString Default;
};

/// What the tools said about the files in work.
struct Media_State
{
    ::FileInfoList FileInfoList{1};
    ExtStreamInfo ExtAudioInfo{
        .SourceText = {}, .HandlerName = {}, .Language = QStringLiteral("und"), .Forced = {}, .Default = {}};
    ExtStreamInfo ExtSubtitleInfo;
    QString FFProbe_Output; ///< the format text followed by the streams' text of the current video
    QString FFProbe_ExtAudio_Output;
    QString FFProbe_ExtSubtitle_Output;
    QString Video_Duration;         ///< HH:MM:SS and the fraction, of the current video
    QStringList Audio_Languages;    ///< of the current video's tracks, kept or not, each once, as they are tagged
    QStringList Subtitle_Languages; ///< the same
    QString MKVMerge_Ident_Output;
    QStringList Video_Info_Lines;
    QStringList Probe_Warnings; ///< careful: what is odd about the current video, in words
    QStringList Unread_Files;   ///< careful: why added files of the current video can't be read; its user empties it
    int Show_Codec_Private = 0; ///< 1 keeps the codec-private values in Video_Info_Lines
};
