#include "run/habits.h"

#include "command/command_frame.h"
#include "command/companion_files.h"
#include "command/source_names.h"
#include "command/video_block.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static const QString Key_Note = QStringLiteral(" (\"Sensible Names And Sizes\" changes that)");

static void Add_Foreign_Companions(const ExternalTrackList& list, const QString& base, const QStringList& video_bases,
                                   QStringList& warnings)
{
    for (const ExternalTrack& track : list)
        if (track.InUse)
            if (const QString owner = Longest_Base_In(track.FileName, video_bases); owner != base.toLower())
                warnings +=
                    u"\"%1\" was added though its name fits \"%2\" better"_s.arg(track.FileName, owner) + Key_Note;
}

static bool Has_Pinned_Size(const Program& program)
{
    const FileInfoList& streams = program.Media.FileInfoList;
    return program.Options.chk_VideoFormatOptions.Value != 1 &&
           std::any_of(streams.begin(), streams.end(), [](const FileInfo& stream) {
               return stream.StreamType == "video"_L1 && Has_Own_Aspect(stream);
           });
}

QStringList Habit_Warnings(const Program& program, const QStringList& video_bases)
{
    QStringList warnings;
    if (program.Settings.Extensions.Sensible_Names_And_Sizes)
        return warnings;
    const QString& source = program.Run.Current_Video_Path;
    const QString base = Video_Base_Name_Of(source);
    if (base != Get_Base_Name(source))
        warnings += u"the extension in capitals makes the name: \"%1.mkv\""_s.arg(base) + Key_Note;
    if (program.Options.chk_SplitVideos.Value == 1)
        return warnings;
    Add_Foreign_Companions(program.Companions.External_Audio, base, video_bases, warnings);
    Add_Foreign_Companions(program.Companions.External_Subtitles, base, video_bases, warnings);
    if (Has_Pinned_Size(program))
        warnings +=
            u"the display size is set to the coded size though the picture has an aspect of its own"_s + Key_Note;
    return warnings;
}

QStringList Companions_Left_Out(const Program& program)
{
    QStringList left_out;
    for (const ExternalTrack& track : program.Companions.External_Subtitles)
        if (track.InUse && !program.Run.Mkvmerge_Arguments.Holds_Path(track.Folder + track.FileName))
            left_out += u"\"%1\" was not added, because its name is a part of others'"_s.arg(track.FileName) + Key_Note;
    for (const ExternalTrack& track : program.Companions.External_Subtitles_Unpaired)
        if (track.InUse)
            left_out += u"\"%1\" was not added, because its .sub file is missing"_s.arg(track.FileName);

    // The log has just been told of those whose names no tool can be given.
    for (const QString& line : program.Logs.Log_Faults.ToString().split(Line_Break))
        if (line.startsWith(Left_Out_Note))
            left_out += line.sliced(Left_Out_Note.size()) + u" was not added, because its name isn't valid UTF-8"_s;

    const JobOptions& options = program.Options;
    const bool elsewhere = options.chk_ChaptersPath.Value == 1 && !options.Path_Chapters.isEmpty();
    const QString stem = (elsewhere ? options.Path_Chapters : options.Path_Videos) +
                         Output_Base_Of(program, program.Run.Current_Video_Path) + u"_Chapters."_s;
    if (options.chk_ReplaceChapters.Value == 1 && options.chk_ConvertTXT.Value != 1)
        for (const QString& extension : {u"ogg"_s, u"ogm"_s, u"txt"_s, u"xml"_s})
            if (File_Exists(stem + extension))
                left_out += u"\"%1\" was not used, because \"Convert TXT to XML Chapters\" is off"_s.arg(
                    File_Name_Of(stem + extension));
    return left_out;
}
