#pragma once

#include <QHash>
#include <QString>
#include <deque>

/// How many files of a run ended how; each counts once.
struct Outcome_Counts
{
    int Done = 0;     ///< without a warning
    int Warnings = 0; ///< done, with warnings
    int Failed = 0;
    int Skipped = 0;
    int Not_Run = 0;

    int Kept = 0;     ///< of those with warnings: whose source should have gone to the trash and stays
    int Problems = 0; ///< videos of a dry run of which Problems_Of has something to say
    qint64 Bytes = 0; ///< sizes of the sources that are done
};

/// How far one video in work is.
struct Video_In_Work
{
    qint64 Bytes = 0; ///< size that its source had when its turn began
    int Percent = 0;
};

/// By the paths of their sources.
using Videos_In_Work = QHash<QString, Video_In_Work>;

/// How much of a run was worked through by then.
struct Worked_Sample
{
    qint64 Milliseconds = 0; ///< since the run began
    double Bytes = 0;
};

/// How far a run is, for the line below the bar. Kept by who listens to the run for the window; the run itself doesn't
/// read it.
struct Run_Tally
{
    Outcome_Counts Counts;
    int Files = 0; ///< that the run takes in work
    int Index = 0; ///< of the video that was taken in work last, from 1
    Videos_In_Work In_Work = {};
    qint64 Bytes_In_All = 0;                    ///< sizes of all sources
    qint64 Bytes_Past = 0;                      ///< of those that had their turn, whatever became of them
    std::deque<Worked_Sample> Last_Minute = {}; ///< of a run with several at once; the oldest first
};
