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
    track.DefaultFlag = values[Default_Slot];
    track.ForcedFlag = values[Forced_Slot];
    track.Delay = values[Delay_Slot];
}

void Apply_Sticky_Values(ExternalTrack& track, const StickyValues& sticky, const LanguageTable& table)
{
    if (sticky.Sticky_Titles == 1 && !sticky.Title.isEmpty()) {
        track.Title = sticky.Title;
        track.Literal = false;
    }
    if (sticky.Sticky_Languages == 1 && !sticky.Language.isEmpty())
        track.Language = Language_Code_Of_File(table, sticky.Language, u"the sticky language"_s);
    if (sticky.Sticky_Default == 1 && !sticky.Default.isEmpty())
        track.DefaultFlag = sticky.Default;
    if (sticky.Sticky_Forced == 1 && !sticky.Forced.isEmpty())
        track.ForcedFlag = sticky.Forced;
    if (sticky.Sticky_Delay == 1 && !sticky.Delay.isEmpty())
        track.Delay = sticky.Delay;
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
