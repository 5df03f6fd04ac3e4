#pragma once

#include <QString>

struct Program;

/// Turns what ffprobe said of a video, the options and the files found beside it into the command line of mkvmerge:
/// a global head, the source's options and the source in parentheses, each external file with its options ahead of it,
/// and what concerns the whole output. `target_path` and `videos_path` end in a separator.
///
/// Returns 1 with the command in Run.Mkvmerge_Arguments and its output in Run.Output_Path; 0, with both left as they
/// were, if FFProbe_Output is empty. Problems with external files are logged, and the command is built without them.
int Parse_VideoData_A(Program& program, const QString& target_path, const QString& videos_path,
                      const QString& video_path);

/// The second half of it, for a video whose records are in FileInfoList: makes its command into the file at
/// `output_path`.
void Assemble_Command(Program& program, const QString& output_path, const QString& videos_path,
                      const QString& video_path);

/// The name that output, companions and file title go by: Video_Base_Name_Of, or with "Sensible Names And Sizes" the
/// name without its extension, whatever its case.
QString Output_Base_Of(const Program& program, const QString& video_path);
