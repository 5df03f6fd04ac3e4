#pragma once

#include "state/run_listener.h"
#include "state/run_tally.h"

#include <QString>
#include <QStringList>

struct Program;

/// The words for how a run goes and how it went, at every log level: the line below the window's bar, the window's
/// title, the last line of vantorra-batch.

/// How much of the videos in work is done, by their sizes.
double Bytes_Done_Of(const Videos_In_Work& in_work);

/// Counts a file once. `source_bytes`: the size that its source had when its turn began.
void Count_Outcome(const File_Outcome& outcome, qint64 source_bytes, Outcome_Counts& counts);

/// "36 done, 1 with warnings, 2 failed, 1 skipped, 0 not run - 12.4 GB in 3:10".
QString Summary_Of(const Outcome_Counts& counts, qint64 milliseconds);

/// Milliseconds since the run began, by the program's clock; 0 where that was set back, or nothing has run yet.
qint64 Age_Of_Run(const Program& program);

/// A run of more than a minute: people have gone away, or have an hour's work to lose.
bool Is_Long_Run(const Program& program);

/// What the window hears of a run, in this order; each brings Run.Tally and the line below the bar in step.
/// Sources that the run will take in work; may come in parts.
void Tally_Sources(Run_Tally& tally, const QStringList& sources);
void Tally_Run_Started(Program& program, int files);
void Tally_File_Started(Program& program, int index, const QString& source);
/// Percent of a file in work.
void Tally_Progress(Program& program, const QString& source, int percent);
void Tally_File_Finished(Program& program, const File_Outcome& outcome);

/// "17 of 40", "3:10 left", "1 failed" with dots between them: the file in work, the time left from the bytes that are
/// done, once that can be guessed (of several at once by the last minute), what was warned of and what failed. What is
/// unknown or zero is left out.
void Show_Running_Summary(Program& program);

/// The run is over: the line says how it went. Nothing where nobody kept the tally.
void Show_Last_Summary(Program& program);

/// Tells a person who has gone away of the end of a long run, if the settings have it so ("Tell At The End").
void Tell_At_The_End(Program& program);

/// The window's title: ahead of it the preset, and the percentage while a run goes on.
QString Window_Title(const Program& program);
