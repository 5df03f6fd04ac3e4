#pragma once

#include "options/language_table.h"
#include "state/companions.h"
#include "state/job_options.h"
#include "support/command_line.h"

#include <QString>
#include <cstdint>

struct Program;
class clsStringBuilder;

/// What counts as an external subtitle file: plain files, and the half of a VobSub pair that names it.
inline const QString Subtitle_File_Masks = QStringLiteral("*.srt;*.ssa;*.ass;*.sup;*.mks");
inline const QString Idx_File_Mask = QStringLiteral("*.idx");

/// Where a video's external subtitles are looked for: the subtitle folder if chosen and set, else `videos_path`.
QString External_Subtitle_Folder(const JobOptions& options, const QString& videos_path);

/// Adds to `list` every subtitle file of `folder` that belongs to `base_name`: the plain files, with the settings of
/// their option files or the sticky values, and behind them the ".idx" files whose ".sub" is there. The ".idx" files
/// without one go to `unpaired`, and the failure picture flashes.
void Find_External_Subtitles(Program& program, const QString& folder, const QString& base_name, ExternalTrackList& list,
                             ExternalTrackList& unpaired);

/// Gives the last record of `list` the language of the ".idx" file: that of its option file, if option files are used
/// and it has one, else the two-letter code of the file's last "id:" line. False if the file isn't there.
///
/// Error 9, naming the file, for a line whose language is wanted and that has no ":" ahead of its first ",".
bool Read_Idx_File(const QString& folder, const QString& file_name, bool use_option_files, const LanguageTable& table,
                   ExternalTrackList& list);

/// The lines about external subtitles in `faults`, by the log verbosity. `say_origin`: also where each language is
/// from.
void Log_External_Subtitles(const ExternalTrackList& list, const ExternalTrackList& unpaired, const JobOptions& options,
                            const LanguageTable& table, clsStringBuilder& faults, bool say_origin = false);

/// The options and the input of each file of `list`, if subtitles are added at all, and their entries in `order_extra`.
/// `sensible`: also of one whose name is a part of others'.
void Append_External_Subtitle_Arguments(Command_Line& command, const ExternalTrackList& list, const JobOptions& options,
                                        std::int16_t next_file_index, QString& order_extra, bool sensible = false);
