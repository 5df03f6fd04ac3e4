#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <vector>

struct Program;

/// A track as mkvmerge numbers it.
struct Identified_Track
{
    int Id = 0;   ///< its number on mkvmerge's command line
    QString Type; ///< "video", "audio", "subtitles" or "buttons"
    QString Codec;
    std::optional<std::uint64_t> Number; ///< the container's own number
    QString Name = {};
    QString Language = {};     ///< three letters; empty: not stated
    QString Language_Tag = {}; ///< by BCP 47; empty: not stated
    QString Display_Size = {}; ///< "1920x1080"
    bool Default = false;
    bool Forced = false;
    bool Has_Tags = false;
};

/// What mkvmerge's JSON identification says about a file, as far as a run goes by it.
struct Identified_File
{
    bool Readable = false; ///< mkvmerge knows the container and can read it
    QString Container;
    QString Title = {};
    std::vector<Identified_Track> Tracks;
    QStringList Attachments; ///< "NAME, N bytes" each, in the file's order
    int Chapters = 0;        ///< all editions' entries
};

/// Reads mkvmerge's JSON. Nothing for a text that is none.
std::optional<Identified_File> Parse_Identification(const QByteArray& json);

/// Asks the mkvmerge that does the work. Nothing, with the reason in words in `why_not`, if it couldn't be asked; a
/// file that it can't read is an answer.
std::optional<Identified_File> Identify_Tracks(Program& program, const QString& path, QString& why_not);

/// What came of asking about one of several files: the answer, or why there is none, in words.
struct Identification
{
    std::optional<Identified_File> File;
    QString Why_Not;
};

/// Identify_Tracks for several files, in their order, in less time than one after the other.
std::vector<Identification> Identify_Each(Program& program, const QStringList& paths);
