#pragma once

#include "support/files.h"

#include <QString>

struct JobOptions;
struct Main_Form;
struct Program;

/// The five folders that steer a run, as they are: tested, shown, and the numbered error box of a bad path. How they
/// change stands in folder_changes.

/// Tests one folder and brings its path, caption, fault caption and "Empty" mark in step with the disk; a folder that
/// is gone becomes the empty text. `which` is "All", "VideosPath", "AudioPath", "SubsPath", "ChaptersPath" or
/// "TargetPath". True if the last folder looked at passed.
bool Check_Paths(Program& program, const QString& which);

/// What the target's box says of a target that is the videos' folder.
inline const QString Same_Folder_Fault = QStringLiteral("This is the video folder: choose another one");

/// Says it, or takes it back, without a change of any folder: one of the two has changed.
void Tell_Same_Folder(Program& program);

/// True if the folder holds a file or a subfolder; `counts` takes their numbers.
bool Folder_Has_Content(const QString& path, Folder_Counts& counts);

/// The panels of the audio, subtitle and chapter folders stand on the form only while their boxes are ticked.
void Show_Folder_Panels(const JobOptions& options, Main_Form& form);

/// The run button is enabled while both of its folders are set.
void Test_Run_Button(Program& program);
/// Test_Run_Button, where the operator wants it after every change of one of its folders (Extensions).
void Follow_Folders(Program& program);

/// Shows the numbered box of a path error and sets `code` to 0. Codes under 1 stay; codes without a box show nothing.
void Show_Path_Error(Program& program, int& code);

/// A folder changed, or the run button was pressed: what the form still shows of before, the run's counts, progress,
/// end, summary and last name, and the notice, goes.
void Forget_Last_Run(Main_Form& form);
