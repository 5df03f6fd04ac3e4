#pragma once

#include "options/language_table.h"
#include "state/companions.h"
#include "state/job_options.h"
#include "support/command_line.h"

#include <QString>
#include <cstdint>

struct Program;
class clsStringBuilder;

/// What counts as an external audio file.
inline const QString Audio_File_Masks = QStringLiteral("*.mp3;*.aac;*.ac3;*.m4a;*.mka;*.wav;*.flac;*.ogg;*.dts;*.opus");

/// Where a video's external audio files are looked for: the audio folder if that is chosen and set, else `videos_path`.
QString External_Audio_Folder(const JobOptions& options, const QString& videos_path);

/// Adds to `list` every audio file of `folder` that belongs to `base_name`, one ffprobe run each, with the settings
/// that its option file, the sticky values, its name (if that counts) or the file itself give. `default_claimed`: an
/// option file says "yes" to default. A folder without such a file leaves the list untouched.
void Find_External_Audio(Program& program, const QString& folder, const QString& base_name, ExternalTrackList& list,
                         bool& default_claimed);

/// The lines about external audio in `faults`, by the log verbosity. `say_origin`: also where each language is from.
void Log_External_Audio(const ExternalTrackList& list, const JobOptions& options, const LanguageTable& table,
                        clsStringBuilder& faults, bool say_origin = false);

/// The options and the input of each file of `list`, if audio files are added at all. `allow_default`: no option file
/// claims the default. Sets `order_default` to the entry of the track that takes the default, adds the others to
/// `order_extra`, and moves `next_file_index` behind the last file.
void Append_External_Audio_Arguments(Command_Line& command, const ExternalTrackList& list, const JobOptions& options,
                                     bool allow_default, QString& order_default, QString& order_extra,
                                     std::int16_t& next_file_index);
