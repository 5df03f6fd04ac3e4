#include "command/source_tracks.h"

#include "command/track_names.h"
#include "support/text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

bool Language_Word_Match(const QString& list_text, const QString& field, const LanguageTable& table)
{
    if (list_text.isEmpty() || field.isEmpty())
        return false;
    const QString code = Language_Code_Of(table, list_text);
    const QStringList words = Split_Text(Trim_Blanks(field.toLower()), u" "_s);
    return std::any_of(words.begin(), words.end(), [&](const QString& word) { return word.startsWith(code); });
}

bool Language_In_Filter(const QString& filter, const QString& code)
{
    return !filter.isEmpty() && !code.isEmpty() && filter.contains(u'(' + code + u')');
}

/// What the selection of one kind of tracks goes by.
struct Selection_Rules
{
    QString StreamType;
    int Mode; ///< 0 all stay, 1 strip, 2 English only, 3 the filter's languages go, 4 only they stay
    const QString& Filter;
    bool Keep_English_Titles;
    QString Some_Option;
    QString None_Option;
};

static bool Stays(const FileInfo& stream, const Selection_Rules& rules, const LanguageTable& table)
{
    switch (rules.Mode) {
    case 1:
        return false;
    case 2:
        // Deliberate: "eng und" counts as "eng", its first word, so that an undetermined language goes.
        return Language_Word_Match(u"eng und"_s, stream.Language, table) ||
               (rules.Keep_English_Titles && Language_Word_Match(u"eng"_s, stream.Title, table));
    case 3:
        return !Language_In_Filter(rules.Filter, stream.Language);
    case 4:
        return Language_In_Filter(rules.Filter, stream.Language);
    default:
        return true;
    }
}

static Tracks_Argument Select_Tracks(FileInfoList& streams, const Selection_Rules& rules, const LanguageTable& table)
{
    int total = 0;
    QStringList kept;
    for (FileInfo& stream : streams) {
        if (stream.StreamType != rules.StreamType)
            continue;
        ++total;
        if (Stays(stream, rules, table))
            kept += stream.Index;
        else
            stream.StreamType.clear();
    }
    if (kept.size() == total)
        return {};
    if (kept.isEmpty())
        return {rules.None_Option, {}};
    return {rules.Some_Option, kept.join(u',')};
}

Tracks_Argument Select_Source_Audio(FileInfoList& streams, const JobOptions& options, const LanguageTable& table)
{
    return Select_Tracks(streams,
                         {u"audio"_s, options.AudioFilterMode, options.AudioFilter.Languages,
                          options.Keep_English_Audio, u" --audio-tracks "_s, u" --no-audio"_s},
                         table);
}

Tracks_Argument Select_Source_Subtitles(FileInfoList& streams, const JobOptions& options, const LanguageTable& table)
{
    return Select_Tracks(streams,
                         {u"subtitle"_s, options.SubsFilterMode, options.SubsFilter.Languages,
                          options.Keep_English_Subs, u" --subtitle-tracks "_s, u" --no-subtitles"_s},
                         table);
}

void Tracks_Argument::Append_To(Command_Line& command) const
{
    if (Tracks)
        command.Add_Option(Option, *Tracks);
    else
        command.Add_Options(Option);
}

static void Append_Language(Command_Line& command, FileInfo& stream)
{
    if (stream.Language == "???"_L1)
        stream.Language = u"und"_s;
    command.Add_Option(u" --language "_s, stream.Index + u':' + stream.Language);
}

void Append_Source_Audio(Command_Line& command, FileInfoList& streams, const JobOptions& options, bool strip_titles,
                         bool default_claimed)
{
    for (FileInfo& stream : streams) {
        if (stream.StreamType != "audio"_L1)
            continue;
        const QString track = stream.Index + u':';
        Append_Language(command, stream);
        Append_Audio_Name(command, stream, strip_titles);
        if (!default_claimed) {
            // Deliberate: whatever isn't "1" is stated as "no".
            command.Add_Option(u" --default-track "_s, track + (stream.DefaultFlag == "1"_L1 ? u"yes"_s : u"no"_s));
            command.Add_Option(u" --forced-track "_s, track + (stream.ForcedFlag == "1"_L1 ? u"yes"_s : u"no"_s));
        }
        if (options.chk_AudioDelayAdjust.Value >= 1 && !options.Audio_Delay.isEmpty())
            command.Add_Option(u" --sync "_s, track + options.Audio_Delay);
    }
}

/// A subtitle's flag: the word of the box if that is ticked, else what the source says; nothing if it says neither.
static void Append_Subtitle_Flag(Command_Line& command, const QString& option, const QString& index,
                                 const Check_Box& all, const QString& flag)
{
    if (all.Value == 1)
        command.Add_Option(option, index + u':' + all.Tag);
    else if (flag == "1"_L1)
        command.Add_Option(option, index + u":yes"_s);
    else if (flag == "0"_L1)
        command.Add_Option(option, index + u":no"_s);
}

void Append_Source_Subtitles(Command_Line& command, FileInfoList& streams, const JobOptions& options, bool strip_titles)
{
    for (FileInfo& stream : streams) {
        if (stream.StreamType != "subtitle"_L1)
            continue;
        if (!stream.Language.isEmpty())
            Append_Language(command, stream);
        Append_Subtitle_Name(command, stream, strip_titles);
        Append_Subtitle_Flag(command, u" --default-track "_s, stream.Index, options.chk_SubDefaults,
                             stream.DefaultFlag);
        Append_Subtitle_Flag(command, u" --forced-track "_s, stream.Index, options.chk_SubForces, stream.ForcedFlag);
    }
}
