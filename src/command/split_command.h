#pragma once

#include <QString>

struct Program;

/// The command of the split run: the video is only remuxed, its picture and sound tracks named by language, and cut
/// into pieces of the set number of minutes. No other option counts; subtitles, chapters, tags and attachments are left
/// to mkvmerge. Paths as for Parse_VideoData_A.
///
/// Returns 1 with the command in Run.Mkvmerge_Arguments and its output in Run.Output_Path, which mkvmerge makes the
/// names of the pieces from; 0, with both left as they were, if FFProbe_Output is empty. Error 13 if the minutes are no
/// number.
int Split_Video_Mod(Program& program, const QString& target_path, const QString& videos_path,
                    const QString& video_path);

/// The second half of it, for a video whose records are in FileInfoList: makes its command with `output_path` as the
/// name that mkvmerge makes those of the pieces from.
void Assemble_Split_Command(Program& program, const QString& output_path, const QString& video_path);

/// The value of --split: "duration:1800s" for "30".
QString Split_Duration(const QString& minutes);
