#pragma once

#include <QString>

struct Program;

/// What ffprobe says about a file that stands beside a video. After a pipe or process failure, or if ffprobe prints
/// nothing, a numbered report is made that names the file, and the last good answer stays in place. In a careful run
/// each file is asked about on its own, as JSON, and one that no tool can read is noted in Media.Unread_Files.

/// Fills ExtAudioInfo, "und" where there is no language. 1 on success, 0 after a report.
int Run_FFProbe_ExtAudio(Program& program, const QString& path);

/// Fills ExtSubtitleInfo. Deliberate: 0 always, so that external subtitles take nothing from ffprobe.
int Run_FFProbe_ExtSubtitle(Program& program, const QString& path);
