#include "command/external_subtitles.h"

#include "command/companion_files.h"
#include "command/joined_names.h"
#include "inspect/external_probe.h"
#include "logs/results_digest.h"
#include "state/program.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

QString External_Subtitle_Folder(const JobOptions& options, const QString& videos_path)
{
    const bool elsewhere = options.chk_SubsPath.Value == 1 && !options.Path_Subtitles.isEmpty();
    return elsewhere ? options.Path_Subtitles : videos_path;
}

static void Read_Subtitle_Options(const Program& program, ExternalTrack& track)
{
    Option_Values values;
    if (Read_Option_File(program.Language_Table, track.Folder + track.FileName, values)) {
        Take_Option_Values(track, values);
        track.OptionFileUsed = true;
        track.OptionStatus = 1;
        return;
    }
    track.OptionStatus = 2;
    if (program.Options.chk_ApplyDefaultSubOpts.Value == 1) {
        Apply_Sticky_Values(track, program.Settings.Subtitle_Sticky, program.Language_Table);
        track.OptionStatus = 3;
    }
}

static void Add_Plain_File(Program& program, const QString& folder, const QString& name, std::int16_t file_index,
                           ExternalTrackList& list)
{
    const QString path = folder + name;
    // Deliberate: the probe never tells 1, so an external subtitle takes nothing from ffprobe.
    const int probed = Run_FFProbe_ExtSubtitle(program, path);
    ExternalTrack& track = Add_Track(list);
    track.FileName = name;
    track.FileIndex = file_index;
    track.Folder = folder;
    if (probed == 1) {
        const ExtStreamInfo& info = program.Media.ExtSubtitleInfo;
        track.Title = info.HandlerName;
        track.Literal = program.Run.Careful;
        track.Language = Language_Code_Of_File(program.Language_Table, info.Language, path);
        track.DefaultFlag = info.Default;
        track.ForcedFlag = info.Forced;
    }
    if (program.Options.chk_UseSubOpts.Value == 1)
        Read_Subtitle_Options(program, track);
}

static void Read_Names(const Program& program, const QString& base_name, ExternalTrackList& list)
{
    for (ExternalTrack& track : list)
        if (track.InUse)
            Take_Name_Facts(track, Facts_Of_Name(program.Language_Table, track.FileName, base_name));
}

static void Add_Idx_File(Program& program, const QString& folder, const QString& name, ExternalTrackList& list,
                         ExternalTrackList& unpaired)
{
    const bool has_sub = File_Exists(folder + Get_Base_Name(name) + u".sub"_s);
    if (!has_sub)
        Flash_Process_Failed(program);
    // Deliberate: FileIndex stays 0, so the order entry names the first subtitle input, whichever file that is.
    ExternalTrack& track = Add_Track(has_sub ? list : unpaired);
    track.IsIdxPair = true;
    track.HasSubFile = has_sub;
    track.FileName = name;
    track.Folder = folder;
    if (has_sub)
        Read_Idx_File(folder, name, program.Options.chk_UseSubOpts.Value == 1, program.Language_Table, list);
}

void Find_External_Subtitles(Program& program, const QString& folder, const QString& base_name, ExternalTrackList& list,
                             ExternalTrackList& unpaired)
{
    program.Run.Process_Failed = false;
    clsStringBuilder& faults = program.Logs.Log_Faults;
    const QStringList& bases = program.Run.Sensible_Bases;
    const QStringList names = Find_Companions(folder, base_name, Subtitle_File_Masks, faults, bases) +
                              Find_Companions(folder, base_name, Idx_File_Mask, faults, bases);
    if (names.isEmpty())
        return;
    // Deliberate: extensions are compared with their case here, so "x.IDX" counts as a plain file.
    const auto is_idx = [](const QString& name) { return Get_Extension(name) == u"idx"_s; };
    long long counter = -1;
    for (const QString& name : names) {
        if (is_idx(name) || Get_Extension(name) == u"sub"_s)
            continue;
        ++counter;
        Add_Plain_File(program, folder, name, Checked_Int16(counter, u"Counting the subtitle files of "_s + base_name),
                       list);
    }
    for (const QString& name : names)
        if (is_idx(name))
            Add_Idx_File(program, folder, name, list, unpaired);
    if (program.Settings.Extensions.Language_From_File_Name)
        Read_Names(program, base_name, list);
    program.Person.Pump_Events();
}

/// True for a line of an ".idx" file that names a language, "id: en, index: 0". Deliberate: the places of its two keys,
/// counted from 1, are combined bit by bit, and a line where nothing is left of them is passed over.
static bool Names_A_Language(const QString& line)
{
    const qsizetype index_place = line.indexOf(u"index:"_s, 0, Qt::CaseInsensitive) + 1;
    const qsizetype id_place = line.indexOf(u"id:"_s, 0, Qt::CaseInsensitive) + 1;
    return (index_place & id_place) != 0;
}

static QString Language_Of_Id_Line(const QString& line, const QString& path)
{
    const QString id = Piece_Of(line, u',', 0);
    if (!id.contains(u':'))
        throw Run_Time_Error(Error_Number::Subscript_Out_Of_Range, u"Reading the language of a VobSub index"_s, path,
                             line, u"A language line reads \"id: en, index: 0\"; mend it, or take the file away."_s);
    return Trim_Blanks(Piece_Of(id, u':', 1).toLower());
}

bool Read_Idx_File(const QString& folder, const QString& file_name, bool use_option_files, const LanguageTable& table,
                   ExternalTrackList& list)
{
    const QString path = With_Separator(folder) + file_name;
    Option_Values values;
    if (use_option_files)
        Read_Option_File(table, path, values);
    ExternalTrack& track = list.back();
    track.Default_Chosen = !values[Default_Slot].isEmpty();
    track.Forced_Chosen = !values[Forced_Slot].isEmpty();
    if (!File_Exists(path))
        return false;
    for (const QString& line : Read_Lines(path)) {
        // Deliberate: "forced subs: ON" has no effect on any argument.
        if (line.contains(u"forced subs:"_s, Qt::CaseInsensitive) || !Names_A_Language(line))
            continue;
        const QString& chosen = values[Language_Slot];
        track.Language = chosen.isEmpty() ? Language_Of_Id_Line(line, path) : chosen;
        track.Language_From = chosen.isEmpty() ? Language_Origin::The_File : Language_Origin::Option_File;
    }
    return true;
}

static QString No_Subtitle_Found_Line(const JobOptions& options)
{
    QString none = u"-- Adding subtitle track(s), but none were found."_s;
    if (options.chk_ApplyDefaultSubOpts.Value == 1)
        return none + u" Subtitle Options selection ignored. Default Subtitle (sticky) settings ignored."_s;
    if (options.chk_UseSubOpts.Value == 1)
        return none + u" Subtitle Options selection ignored."_s;
    return none;
}

static void Log_Files(const ExternalTrackList& list, const JobOptions& options, const LanguageTable& table,
                      clsStringBuilder& faults, bool say_origin)
{
    QString option_line;
    if (options.chk_UseSubOpts.Value == 1) {
        option_line = u"   *** Subtitle option file NOT found. Subtitle Options selection ignored."_s;
        if (options.chk_ApplyDefaultSubOpts.Value == 1)
            option_line += u" Applying Default Subtitle Options."_s;
    }
    for (const ExternalTrack& track : list) {
        faults.AppendLine(u"-- Adding subtitle track - \""_s + As_One_Line(track.FileName) + u'"' +
                          Language_Part(table, track.Language));
        if (!track.OptionFileUsed && !option_line.isEmpty())
            faults.AppendLine(option_line);
        if (say_origin)
            faults.AppendLine(u"   *** Language "_s + Origin_Text(track));
    }
}

void Log_External_Subtitles(const ExternalTrackList& list, const ExternalTrackList& unpaired, const JobOptions& options,
                            const LanguageTable& table, clsStringBuilder& faults, bool say_origin)
{
    if (options.chk_AddSubs.Value != 1 || options.Log_Verbosity == 0)
        return;
    const bool brief = options.Log_Verbosity == 1;
    if (!list.front().InUse)
        faults.AppendLine(No_Subtitle_Found_Line(options));
    else if (!brief)
        Log_Files(list, options, table, faults, say_origin);
    if (!unpaired.front().InUse)
        return;
    // Deliberate: the two wordings, misspelling included.
    const QString reason =
        brief ? u"\". The '*.sub' file was not found."_s : u"\". The acompanying '*.sub' file was not found."_s;
    for (const ExternalTrack& track : unpaired)
        faults.AppendLine(u"   *** Cannot add subtitle; \""_s + As_One_Line(track.FileName) + reason);
}

void Append_External_Subtitle_Arguments(Command_Line& command, const ExternalTrackList& list, const JobOptions& options,
                                        std::int16_t next_file_index, QString& order_extra, bool sensible)
{
    if (options.chk_AddSubs.Value != 1 || !list.front().InUse)
        return;
    Joined_Names added;
    for (const ExternalTrack& track : list) {
        if (track.IsIdxPair && !track.HasSubFile)
            continue;
        // Deliberate: a name that is a part of the names added so far, written side by side, is skipped. That rule was
        // made for a file system where two names never differ in case alone; here both are files of their own.
        if (!sensible && added.Contains(track.FileName) && !added.Differs_Only_In_Case(track.FileName))
            continue;
        const QString id = QString::number(track.TrackId) + u':';
        command.Add_Option(u" --language "_s, Track_Language(track));
        Append_Track_Name(command, track);
        if (track.DefaultFlag == u"yes"_s || track.DefaultFlag == u"no"_s)
            command.Add_Option(u" --default-track "_s, id + track.DefaultFlag);
        if (track.ForcedFlag == u"yes"_s)
            command.Add_Option(u" --forced-track "_s, id + track.ForcedFlag);
        if (track.Hearing_Impaired)
            command.Add_Option(u" --hearing-impaired-flag "_s, id + u"yes"_s);
        command.Add_Input(track.Folder + track.FileName);
        added.Add(track.FileName);
        order_extra += Order_Entry(track, next_file_index);
    }
}
