#include "command/companion_files.h"

#include "support/command_line.h"
#include "support/disk_names.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/string_builder.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

QString Longest_Base_In(const QString& name, const QStringList& video_bases)
{
    const QString lowered = name.toLower();
    QString longest;
    for (const QString& base : video_bases)
        if (base.size() > longest.size() && lowered.contains(base))
            longest = base;
    return longest;
}

bool Can_Be_Added(const QString& name, clsStringBuilder& faults)
{
    if (!Has_Stand_Ins(name))
        return true;
    faults.AppendLine(Left_Out_Note + u'"' + As_One_Line(name) + u'"');
    return false;
}

QStringList Find_Companions(const QString& folder, const QString& base_name, const QString& masks,
                            clsStringBuilder& faults, const QStringList& video_bases)
{
    const QString lowered_base = base_name.toLower();
    QStringList names;
    for (const QString& name : List_Files(folder))
        if (name.toLower().contains(lowered_base) && Match_File_Masks(name, masks) &&
            (video_bases.isEmpty() || Longest_Base_In(name, video_bases) == lowered_base) && Can_Be_Added(name, faults))
            names += name;
    return names;
}

ExternalTrack& Add_Track(ExternalTrackList& list)
{
    if (list.back().InUse)
        list.emplace_back();
    list.back().InUse = true;
    return list.back();
}

void Take_Option_Values(ExternalTrack& track, const Option_Values& values)
{
    track.Title = values[Title_Slot];
    track.Literal = false;
    track.Language = values[Language_Slot];
    track.Language_From = track.Language.isEmpty() ? Language_Origin::Nowhere : Language_Origin::Option_File;
    track.DefaultFlag = values[Default_Slot];
    track.Default_Chosen = !track.DefaultFlag.isEmpty();
    track.ForcedFlag = values[Forced_Slot];
    track.Forced_Chosen = !track.ForcedFlag.isEmpty();
    track.Delay = values[Delay_Slot];
}

void Apply_Sticky_Values(ExternalTrack& track, const StickyValues& sticky, const LanguageTable& table)
{
    if (sticky.Sticky_Titles == 1 && !sticky.Title.isEmpty()) {
        track.Title = sticky.Title;
        track.Literal = false;
    }
    if (sticky.Sticky_Languages == 1 && !sticky.Language.isEmpty()) {
        track.Language = Language_Code_Of_File(table, sticky.Language, u"the sticky language"_s);
        track.Language_From = track.Language.isEmpty() ? Language_Origin::Nowhere : Language_Origin::Sticky_Value;
    }
    track.Default_Chosen = sticky.Sticky_Default == 1 && !sticky.Default.isEmpty();
    if (track.Default_Chosen)
        track.DefaultFlag = sticky.Default;
    track.Forced_Chosen = sticky.Sticky_Forced == 1 && !sticky.Forced.isEmpty();
    if (track.Forced_Chosen)
        track.ForcedFlag = sticky.Forced;
    if (sticky.Sticky_Delay == 1 && !sticky.Delay.isEmpty())
        track.Delay = sticky.Delay;
}

void Take_Name_Facts(ExternalTrack& track, const Name_Facts& facts)
{
    const bool chosen =
        track.Language_From == Language_Origin::Option_File || track.Language_From == Language_Origin::Sticky_Value;
    if (!facts.Language.isEmpty() && !chosen) {
        track.Language = facts.Language;
        track.Language_From = Language_Origin::Its_Name;
    }
    if (facts.Default && !track.Default_Chosen) {
        track.DefaultFlag = u"yes"_s;
        track.Flags_Of_Name += u"default"_s;
    }
    if (facts.Forced && !track.Forced_Chosen) {
        track.ForcedFlag = u"yes"_s;
        track.Flags_Of_Name += u"forced"_s;
    }
    track.Hearing_Impaired = facts.Hearing_Impaired;
    if (facts.Hearing_Impaired)
        track.Flags_Of_Name += u"hearing impaired"_s;
}

static QString Origin_Words(Language_Origin origin)
{
    switch (origin) {
    case Language_Origin::The_File:
        return u"from the file itself"_s;
    case Language_Origin::Option_File:
        return u"from the option file"_s;
    case Language_Origin::Sticky_Value:
        return u"from the sticky values"_s;
    case Language_Origin::Its_Name:
        return u"from the file's name"_s;
    case Language_Origin::Nowhere:
        break;
    }
    return u"not known"_s;
}

QString Origin_Text(const ExternalTrack& track)
{
    QString text = Origin_Words(track.Language_From);
    if (track.Flags_Of_Name.isEmpty())
        return text;
    const bool both = track.Language_From == Language_Origin::Its_Name;
    return text + (both ? u"; also from it: "_s : u"; from the file's name: "_s) + track.Flags_Of_Name.join(u", "_s);
}

QString Language_Part(const LanguageTable& table, const QString& language)
{
    QString display;
    if (!Language_Display_Of(table, language, display))
        display = u"Undetermined (und)"_s;
    return u" ;"_s + display;
}

QString Language_Code_Of_File(const LanguageTable& table, const QString& language, const QString& subject)
{
    try {
        return Language_Code_Of(table, language);
    } catch (const Run_Time_Error& error) {
        throw Run_Time_Error(error.Number(), u"Looking up a language"_s, subject, language);
    }
}

void Append_Track_Name(Command_Line& command, const ExternalTrack& track)
{
    const QString option = u" --track-name "_s;
    const QString value = QString::number(track.TrackId) + u':' + track.Title;
    if (track.Title.isEmpty())
        return;
    if (track.Literal)
        command.Add_Literal(option, Quote_Path(value), value);
    else
        command.Add_Option(option, Quote_Path(value));
}

QString Track_Language(const ExternalTrack& track)
{
    const bool unknown = track.Language.isEmpty() || track.Language == u"???"_s;
    return QString::number(track.TrackId) + u':' + (unknown ? u"und"_s : track.Language);
}

QString Order_Entry(const ExternalTrack& track, std::int16_t next_file_index)
{
    const std::int16_t input = Checked_Int16(track.FileIndex + next_file_index, u"Numbering the external files"_s);
    return u',' + QString::number(input) + u':' + QString::number(track.TrackId);
}
