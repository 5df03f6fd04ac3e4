#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

/// The list of the videos' folder: what will become of each video, what becomes of it now, and what has become of it.
/// Filled and changed by rules/video_list and by whoever listens to a run; the window shows it.

/// How far a video is. A row that isn't ticked and has no result shows as left out: its record says Waiting.
enum class Video_State : std::uint8_t
{
    Waiting,
    Left_Out,
    Working, ///< its percentage is known; in a check it is being looked at
    Done,
    Warning, ///< done, with warnings
    Failed,
    Skipped,
    Not_Run
};

/// One video.
struct Video_Row
{
    QString Name;     ///< with its extension, as the walk over the folder has it
    QString Sub_Path; ///< of its folder below the videos' folder, ending in a separator; empty: that folder itself
    Video_State State = Video_State::Waiting;
    bool Ticked = true;
    int Percent = 0; ///< while Working; below 0: it is checked

    // Known once it was checked or its command assembled
    std::optional<double> Length;      ///< seconds
    std::optional<std::int64_t> Bytes; ///< of the file
    QString Keeps;                     ///< "2 audio, 1 subtitle"
    QStringList Kept_Tracks;           ///< a line each, with codec and language
    QString Adds;                      ///< "1 audio (ger), chapters, 3 fonts"
    QStringList Added_Files;           ///< their names, and where the languages of added tracks are from
    bool Languages_Known = false;      ///< the next two count
    QStringList Audio_Languages;       ///< codes of the source's audio tracks, kept or not, each once
    QStringList Subtitle_Languages;    ///< the same of its subtitles
    QStringList Command;               ///< the program and its arguments
    QStringList Problems;              ///< of a check, in words: what speaks against a run
    QString Forecast;                  ///< of a check: that it would be skipped, or replace something

    // Known once it had its turn
    QString Output;       ///< path of what it became, or would become; of a split its first piece
    qsizetype Pieces = 0; ///< of a split: how many it became
    QString Reason;       ///< in words, one line; empty where it is plainly done
    QStringList Warnings;
    double Seconds_Taken = 0;
    bool From_Journal =
        false; ///< the result is of an earlier run, with the options that were in force at the last look

    std::uint64_t Stamp = 0; ///< Video_List::Stamp when it changed last

    /// Path below the videos' folder.
    QString Path() const { return Sub_Path + Name; }
};

/// What the list is narrowed down to.
enum class Video_Chip : std::uint8_t
{
    All,
    Waiting,
    Done,
    Warnings,
    Failed,
    Problems,
    Left_Out,
    Skipped,
    Not_Run
};

enum class Video_Column : std::uint8_t
{
    State,
    Video,
    Length,
    Size,
    Keeps,
    Adds,
    Result
};

struct Video_List
{
    QString Folder;               ///< whose videos these are, ending in a separator; empty: none is chosen
    std::vector<Video_Row> Rows;  ///< in the order of the walk
    QHash<QString, int> Places;   ///< a row's Path() to its number
    int In_Work = -1;             ///< number of the row that is processed or checked, of several the last one; -1: none
    bool With_Subfolders = false; ///< the folders below Folder are in it, too
    bool Takes_Ticks = false;     ///< the boxes count: the next run is a careful one
    int Failed_Before = 0;        ///< ticked rows whose newest result in the journal is a failure
    int Left_Over = 0;    ///< ticked rows that a halted or broken off batch has left; 0: none is to be gone on with
    QString Options_Seen; ///< by which options the two were counted
    bool Recount_Journal = false; ///< they have changed since
    QStringList Notes;            ///< what the last run had to tell that belongs to no video, a line each

    // As the person looks at it
    Video_Chip Chip = Video_Chip::All;
    QString Filter;                        ///< part of a name or of a result, case doesn't count; empty: all
    std::optional<Video_Column> Sorted_By; ///< nothing: the order of the walk
    bool Descending = false;
    std::vector<int> Selected; ///< numbers of the rows that are marked, from above
    QString To_Show;           ///< path of the video that a viewer is opened on, which takes it

    std::uint64_t Stamp = 0;  ///< grows with every change
    std::uint64_t Turned = 0; ///< Stamp when more than a percentage changed last
    std::uint64_t Filled = 0; ///< Stamp when rows came or went last
};
