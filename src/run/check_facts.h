#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class Command_Line;
struct File_Outcome;
struct Program;

/// What would come of a video, in words.
struct Check_Facts
{
    QStringList Tracks; ///< "0 video h264 eng": kept, with the number that mkvmerge gives them
    QStringList Added;  ///< names of the files that are added or attached
    QStringList Hints;  ///< the same, with the languages of added tracks and where they are from
    QString Chapters;   ///< "kept", "removed" or the name of the file that replaces them

    QString Keeps;                ///< "2 audio, 1 subtitle": Tracks, summed up
    QString Adds;                 ///< "1 audio (ger), 2 subtitles, chapters, 3 fonts": the rest, summed up
    std::optional<double> Length; ///< of the source, in seconds; nothing: not known
};

/// Of the video whose command was just assembled.
Check_Facts Check_Facts_Of(const Program& program, const Command_Line& command);

/// What is wrong with a video that a dry run looked at, in words; empty: nothing is known. That it would be left alone
/// is no problem, nor is an output that a careful batch would move to the trash for the new one.
QStringList Problems_Of(const File_Outcome& outcome);
