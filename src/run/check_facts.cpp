#include "run/check_facts.h"

#include "command/companion_files.h"
#include "command/external_audio.h"
#include "inspect/asked_output.h"
#include "state/program.h"
#include "state/run_listener.h"
#include "support/paths.h"

#include <utility>

using namespace Qt::StringLiterals;

static QStringList Kept_Tracks(const FileInfoList& streams)
{
    QStringList tracks;
    for (const FileInfo& stream : streams)
        if (stream.StreamType == "video"_L1 || stream.StreamType == "audio"_L1 || stream.StreamType == "subtitle"_L1)
            tracks += QStringList{stream.Index, stream.StreamType, stream.CodecName, stream.Language}.join(u' ');
    return tracks;
}

/// "3 fonts"; nothing for none. A word that already stands for many has no ending.
static void Add_Count(QStringList& parts, int count, const QString& one, const QString& ending = u"s"_s)
{
    if (count > 0)
        parts += QString::number(count) + u' ' + one + (count == 1 ? QString() : ending);
}

static QString Sum_Of_Kept(const FileInfoList& streams)
{
    const auto count = [&streams](QLatin1StringView type) {
        int found = 0;
        for (const FileInfo& stream : streams)
            found += stream.StreamType == type ? 1 : 0;
        return found;
    };
    QStringList parts;
    Add_Count(parts, count("audio"_L1), u"audio"_s, {});
    Add_Count(parts, count("subtitle"_L1), u"subtitle"_s);
    if (!parts.isEmpty())
        return parts.join(u", "_s);
    return count("video"_L1) > 0 ? u"video only"_s : u"nothing"_s;
}

/// Languages of the added files, in order, each once.
static QStringList Languages_Of(const ExternalTrackList& list)
{
    QStringList languages;
    for (const ExternalTrack& track : list)
        if (track.InUse && !track.Language.isEmpty() && track.Language != "und"_L1)
            languages += track.Language;
    languages.removeDuplicates();
    return languages;
}

static void Add_Tracks(QStringList& parts, int count, const QString& one, const QString& ending,
                       const ExternalTrackList& list)
{
    Add_Count(parts, count, one, ending);
    const QStringList languages = Languages_Of(list);
    if (count > 0 && !languages.isEmpty())
        parts.last() += u" ("_s + languages.join(u", "_s) + u')';
}

static QString Sum_Of_Added(const Program& program, const Asked_Output& asked)
{
    int audio = 0;
    int subtitles = 0;
    for (std::size_t i = 1; i < asked.Inputs.size(); ++i)
        ++(Match_File_Masks(File_Name_Of(asked.Inputs[i].Path), Audio_File_Masks) ? audio : subtitles);
    int fonts = 0;
    for (const QString& path : asked.Attached)
        fonts += Match_File_Masks(File_Name_Of(path), u"*.ttf;*.otf;*.ttc;*.woff;*.woff2"_s) ? 1 : 0;

    QStringList parts;
    Add_Tracks(parts, audio, u"audio"_s, {}, program.Companions.External_Audio);
    Add_Tracks(parts, subtitles, u"subtitle"_s, u"s"_s, program.Companions.External_Subtitles);
    if (asked.Has_Chapter_File)
        parts += u"chapters"_s;
    Add_Count(parts, fonts, u"font"_s);
    Add_Count(parts, static_cast<int>(asked.Attached.size()) - fonts, u"picture"_s);
    return parts.join(u", "_s);
}

/// "Movie.en.srt - English (eng), from the file's name"; the name alone of what is no added track.
static QString Hint_Of(const Program& program, const QString& path)
{
    QString hint = File_Name_Of(path);
    const Companions& found = program.Companions;
    for (const ExternalTrackList* list : {&found.External_Audio, &found.External_Subtitles})
        for (const ExternalTrack& track : *list)
            if (track.InUse && track.Folder + track.FileName == path) {
                const QString language = track.Language.isEmpty() ? u"und"_s : track.Language;
                QString display = language;
                Language_Display_Of(program.Language_Table, language, display);
                return hint + u" - "_s + display + u", "_s + Origin_Text(track);
            }
    return hint;
}

Check_Facts Check_Facts_Of(const Program& program, const Command_Line& command)
{
    const FileInfoList& streams = program.Media.FileInfoList;
    const Asked_Output asked = Asked_Of(command, streams);
    Check_Facts facts{.Tracks = Kept_Tracks(streams),
                      .Added = {},
                      .Hints = {},
                      .Chapters = u"kept"_s,
                      .Keeps = Sum_Of_Kept(streams),
                      .Adds = Sum_Of_Added(program, asked),
                      .Length = Seconds_Of(streams.front())};
    QStringList added = asked.Attached;
    for (std::size_t i = asked.Inputs.size(); i-- > 1;)
        added.prepend(asked.Inputs[i].Path);
    for (const QString& path : std::as_const(added)) {
        facts.Added += File_Name_Of(path);
        facts.Hints += Hint_Of(program, path);
    }
    if (asked.Has_Chapter_File)
        facts.Chapters = File_Name_Of(program.Companions.Chapter_File);
    else if (!asked.Inputs.empty() && asked.Inputs.front().No_Chapters)
        facts.Chapters = u"removed"_s;
    return facts;
}

QStringList Problems_Of(const File_Outcome& outcome)
{
    QStringList problems;
    if (outcome.Status == File_Outcome::Kind::Failed)
        problems += outcome.Reason.isEmpty() ? u"it can't be processed"_s : outcome.Reason;
    else if (outcome.Status == File_Outcome::Kind::Not_Run && outcome.Replaces.isEmpty() && File_Exists(outcome.Output))
        problems += u"the output exists already and would be overwritten"_s;
    return problems + outcome.Warnings;
}
