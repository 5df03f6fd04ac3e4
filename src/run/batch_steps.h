#pragma once

#include "run/output_guard.h"
#include "state/run_listener.h"

#include <QString>
#include <QStringList>

struct Program;
struct Run_State;

/// The steps that the normal run and the split run have in common.

/// How the walk over the folder goes on after an entry.
enum class After_Entry
{
    Next,
    Halted, ///< leave the walk, then close it
    Stopped ///< leave the run at once: mkvmerge can't be started
};

/// True for an entry that the walk looks at: its lowered extension stands in Video_Extensions (an empty one does), and
/// it hasn't vanished since the walk began.
bool Is_Looked_At(const QString& path);

/// Sets Files_Left and File_Index at the start of a video. Error 6 where they leave 16 bits.
void Count_Video(Program& program, int files_done);

/// Why a video that a halt reached has no output.
inline const QString Halted_Reason = QStringLiteral("the run was halted");

/// Clears what the run before left of its outputs, and its warnings of them.
void Forget_Outputs(Run_State& run);

/// Looks at what the command assembled for the outcome's source would overwrite: `outputs`. False, with the reason in
/// Log_Faults and in the outcome, if that would destroy something; where another source of this run has written it, the
/// operator is warned.
bool May_Write(Program& program, const QStringList& outputs, const Written_Outputs& written, File_Outcome& outcome);

/// Notes a video that failed for the end of the run; any other outcome is passed over.
void Note_Failure(Run_State& run, const File_Outcome& outcome);

/// The end of a file: gives a failed one the reason that is known, notes it for the end of the run, and tells the
/// listener.
void Close_Outcome(Program& program, File_Outcome& outcome);

/// Runs the command that was assembled for the outcome's source (in a dry run only tells the listener of it), and sets
/// how the video ended. Halted, and nothing is started, if the halt is there already. Stopped, with report 8 or 9, if
/// mkvmerge can't be started.
After_Entry Run_Assembled_Command(Program& program, File_Outcome& outcome);
