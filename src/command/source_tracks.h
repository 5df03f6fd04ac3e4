#pragma once

#include "options/language_table.h"
#include "state/job_options.h"
#include "state/media_state.h"
#include "support/command_line.h"

#include <QString>
#include <optional>

/// Which of the source's own audio and subtitle tracks stay, and with which language, name, flags and delay.

/// What tells mkvmerge the tracks to take: nothing at all, an option alone (" --no-audio"), or an option and the
/// numbers of the tracks that stay (" --audio-tracks ", "1,3").
struct Tracks_Argument
{
    QString Option;
    std::optional<QString> Tracks;

    void Append_To(Command_Line& command) const;
};

/// Drop the source's tracks that the options don't keep, by emptying their StreamType. Nothing is to be told if all
/// stay.
Tracks_Argument Select_Source_Audio(FileInfoList& streams, const JobOptions& options, const LanguageTable& table);
Tracks_Argument Select_Source_Subtitles(FileInfoList& streams, const JobOptions& options, const LanguageTable& table);

/// Append the options of each kept track, in list order. With `default_claimed`, an external audio file is the default
/// one, and the source's audio has no flags.
void Append_Source_Audio(Command_Line& command, FileInfoList& streams, const JobOptions& options, bool strip_titles,
                         bool default_claimed);
void Append_Source_Subtitles(Command_Line& command, FileInfoList& streams, const JobOptions& options,
                             bool strip_titles);

/// True if a word of `field` (a language, a title) begins with the code of the language that `list_text` names. Only
/// the first word of `list_text` counts. False if either is empty.
bool Language_Word_Match(const QString& list_text, const QString& field, const LanguageTable& table);

/// True if "(code)" stands in the filter's text, in that case. False if either is empty.
bool Language_In_Filter(const QString& filter, const QString& code);
