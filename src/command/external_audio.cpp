#include "command/external_audio.h"

#include "command/companion_files.h"
#include "inspect/external_probe.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/text.h"

#include <array>

using namespace Qt::StringLiterals;

QString External_Audio_Folder(const JobOptions& options, const QString& videos_path)
{
    const bool elsewhere = options.chk_AudioPath.Value == 1 && !options.Path_Audios.isEmpty();
    return elsewhere ? options.Path_Audios : videos_path;
}

/// The settings of one file from its option file, or from the sticky values where there is no usable one.
static void Read_Audio_Options(const Program& program, ExternalTrack& track, bool& default_claimed)
{
    Option_Values values;
    if (Read_Option_File(program.Language_Table, track.Folder + track.FileName, values)) {
        Take_Option_Values(track, values);
        if (track.DefaultFlag.toLower() == u"yes"_s)
            default_claimed = true;
        track.OptionFileUsed = true;
        track.OptionStatus = 1;
        return;
    }
    track.OptionStatus = 2;
    if (program.Options.chk_ApplyDefaultAudioOpts.Value == 1) {
        Apply_Sticky_Values(track, program.Settings.Audio_Sticky, program.Language_Table);
        track.OptionStatus = 3;
    }
}

void Find_External_Audio(Program& program, const QString& folder, const QString& base_name, ExternalTrackList& list,
                         bool& default_claimed)
{
    default_claimed = false;
    const QStringList names =
        Find_Companions(folder, base_name, Audio_File_Masks, program.Logs.Log_Faults, program.Run.Sensible_Bases);
    if (names.isEmpty())
        return;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QString path = folder + names.at(i);
        // A failed probe isn't looked at: the file is added all the same, with what the last good probe said.
        Run_FFProbe_ExtAudio(program, path);
        const ExtStreamInfo& info = program.Media.ExtAudioInfo;
        ExternalTrack& track = Add_Track(list);
        track.FileName = names.at(i);
        track.FileIndex = Checked_Int16(i, u"Counting the audio files of "_s + base_name);
        track.Folder = folder;
        track.Title = info.HandlerName;
        track.Literal = program.Run.Careful;
        track.Language = Language_Code_Of_File(program.Language_Table, info.Language, path);
        if (!track.Language.isEmpty() && track.Language != "und"_L1)
            track.Language_From = Language_Origin::The_File;
        track.DefaultFlag = info.Default;
        track.ForcedFlag = info.Forced;
        if (program.Options.chk_UseAudioOpts.Value == 1)
            Read_Audio_Options(program, track, default_claimed);
        if (program.Settings.Extensions.Language_From_File_Name)
            Take_Name_Facts(track, Facts_Of_Name(program.Language_Table, track.FileName, base_name));
    }
    program.Person.Pump_Events();
}

static QString No_Audio_Found_Line(const JobOptions& options)
{
    QString none = u"-- Adding audio track(s), but none were found."_s;
    if (options.chk_ApplyDefaultAudioOpts.Value == 1)
        return none + u" Audio Options selection ignored. Default Audio (sticky) settings ignored."_s;
    if (options.chk_UseAudioOpts.Value == 1)
        return none + u" Audio Options selection ignored. Original Audio settings unchanged."_s;
    return none;
}

/// By OptionStatus. The first line and the last two stand here for completeness: no file gets them.
static const std::array<QString, 6> Status_Lines = {
    u"  *** Audio Options setting ignored. Original Audio settings unchanged."_s,
    u"  *** Audio Options file is used."_s,
    u"  *** Audio Options file is NOT Found. Keeping original Audio settings."_s,
    u"  *** Audio Options file is NOT found. Applying Default Audio (sticky) settings."_s,
    u"  *** Audio Options file is NOT found. Default Audio (sticky) settings are NOT set."_s,
    u"  *** Audio Options settings ignored. Default Audio (sticky) settings are NOT used."_s,
};

void Log_External_Audio(const ExternalTrackList& list, const JobOptions& options, const LanguageTable& table,
                        clsStringBuilder& faults, bool say_origin)
{
    if (options.chk_AddAudio.Value != 1 || options.Log_Verbosity == 0)
        return;
    if (!list.front().InUse) {
        faults.AppendLine(No_Audio_Found_Line(options));
        return;
    }
    if (options.Log_Verbosity == 1)
        return;
    for (const ExternalTrack& track : list) {
        const QString language = track.Language.isEmpty() ? u"und"_s : track.Language;
        faults.AppendLine(u"-- Adding audio track - \""_s + As_One_Line(track.FileName) + u'"' +
                          Language_Part(table, language));
        if (options.chk_UseAudioOpts.Value == 1)
            faults.AppendLine(Status_Lines.at(static_cast<std::size_t>(track.OptionStatus)));
        if (say_origin)
            faults.AppendLine(u"  *** Language "_s + Origin_Text(track));
    }
}

void Append_External_Audio_Arguments(Command_Line& command, const ExternalTrackList& list, const JobOptions& options,
                                     bool allow_default, QString& order_default, QString& order_extra,
                                     std::int16_t& next_file_index)
{
    if (options.chk_AddAudio.Value != 1 || !list.front().InUse)
        return;
    for (const ExternalTrack& track : list) {
        command.Add_Option(u" --language "_s, Track_Language(track));
        Append_Track_Name(command, track);
        // Deliberate: where an option file claims the default, every external file is told "no", the claiming one too.
        // "yes" is compared with its case, so only an option file or a sticky value ever says it, never a probe.
        const bool takes_default = allow_default && track.DefaultFlag == u"yes"_s;
        if (takes_default)
            command.Add_Option(u" --default-track "_s, u"0:yes"_s);
        else if (!allow_default)
            command.Add_Option(u" --default-track "_s, u"0:no"_s);
        if (track.ForcedFlag == u"yes"_s)
            command.Add_Option(u" --forced-track "_s, u"0:yes"_s);
        if (track.Hearing_Impaired)
            command.Add_Option(u" --hearing-impaired-flag "_s, u"0:yes"_s);
        if (!track.Delay.isEmpty())
            command.Add_Option(u" --sync "_s, u"0:"_s + track.Delay);
        command.Add_Input(track.Folder + track.FileName);
        // Deliberate: a later track that takes the default drives an earlier one out of the order.
        if (takes_default)
            order_default = Order_Entry(track, next_file_index) + u',';
        else
            order_extra += Order_Entry(track, next_file_index);
    }
    next_file_index =
        Checked_Int16(next_file_index + static_cast<long long>(list.size()), u"Numbering the external files"_s);
}
