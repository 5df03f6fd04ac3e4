#pragma once

#include "options/language_table.h"

#include <QString>

/// What the name of an added file tells of its track: "Movie.pt-BR.forced.srt" beside "Movie.mkv" is Portuguese and
/// forced.
struct Name_Facts
{
    QString Language; ///< three letters; empty: the name tells none
    bool Default = false;
    bool Forced = false;
    bool Hearing_Impaired = false; ///< "sdh", "cc", or "hi" behind a language
};

/// Reads the part of `file_name` behind `base_name`, the name that the video's companions go by, in any case. Its parts
/// are divided by dots, brackets, commas, "_" and "-". The last one that the table knows as a code or a name is the
/// language; a region behind it ("-BR", "_TW", "-419") or a script ("-Hans") is cut off. Nothing is told by a name that
/// doesn't hold `base_name`.
Name_Facts Facts_Of_Name(const LanguageTable& table, const QString& file_name, const QString& base_name);
