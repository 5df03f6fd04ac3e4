#pragma once

#include "options/name_facts.h"
#include "options/option_file.h"
#include "state/companions.h"
#include "state/settings_state.h"

#include <QString>
#include <QStringList>

class Command_Line;
class clsStringBuilder;

/// What external audio and external subtitles have in common: which files belong to a video, and how a record takes its
/// settings from an option file or from the sticky values.

/// What stands in the log ahead of the quoted name of a file that can't be added.
inline const QString Left_Out_Note = QStringLiteral("*** Left out, as its name is not valid UTF-8: ");

/// False for a name that isn't valid UTF-8, and then `faults` has a line: mkvmerge can't open such a file, and would
/// fail the whole video for it.
bool Can_Be_Added(const QString& name, clsStringBuilder& faults);

/// Names of the files in `folder` that match `masks` and hold `base_name` anywhere, both without regard to case, in the
/// order of the listing, without those that can't be added. Deliberate: the name isn't anchored, so "The Movie 2.mp3"
/// belongs to "Movie.mkv" too.
///
/// With `video_bases`, the base names in lower case of all videos there are, only those whose longest base it is.
QStringList Find_Companions(const QString& folder, const QString& base_name, const QString& masks,
                            clsStringBuilder& faults, const QStringList& video_bases = {});

/// The longest of `video_bases` (in lower case) that `name` holds in any case; empty if it holds none.
QString Longest_Base_In(const QString& name, const QStringList& video_bases);

/// The record to fill next: the last one of the list, or a new one behind it if that is in use. It comes in use.
ExternalTrack& Add_Track(ExternalTrackList& list);

/// Overwrites all five settings with those of an option file, the empty ones too.
void Take_Option_Values(ExternalTrack& track, const Option_Values& values);
/// Overwrites each setting whose sticky flag is 1 and whose sticky text isn't empty.
void Apply_Sticky_Values(ExternalTrack& track, const StickyValues& sticky, const LanguageTable& table);

/// What the file's name tells, for each setting that neither the option file nor a sticky value has settled. Called
/// behind those two.
void Take_Name_Facts(ExternalTrack& track, const Name_Facts& facts);

/// Where a track's language, and what flags it has by its name, came from: "from the file's name; also from it:
/// forced".
QString Origin_Text(const ExternalTrack& track);

/// " ;English (eng)" for a log line; " ;Undetermined (und)" for anything that isn't a three-letter code of the table.
QString Language_Part(const LanguageTable& table, const QString& language);

/// The language as a three-letter code. The error of a text without a word names `subject`, the file that it is from.
QString Language_Code_Of_File(const LanguageTable& table, const QString& language, const QString& subject);

/// The name of an added track, if it has one.
void Append_Track_Name(Command_Line& command, const ExternalTrack& track);
/// "0:eng": a track's language argument; "und" for an empty one and for "???".
QString Track_Language(const ExternalTrack& track);
/// A track order entry, "," input ":" track. Error 6 where the sum leaves 16 bits.
QString Order_Entry(const ExternalTrack& track, std::int16_t next_file_index);
