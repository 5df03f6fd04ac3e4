#include "run/careful_deletions.h"

#include "run/careful_walk.h"
#include "run/video_work.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/trash.h"

#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

/// All files beside the source that the command was made from: added tracks with their option files and the second half
/// of a VobSub pair, and attachments.
static QStringList Files_Read(const Program& program)
{
    QStringList files;
    const auto add = [&files](const QString& path) {
        if (File_Exists(path))
            files += path;
    };
    const Command_Line& command = program.Run.Mkvmerge_Arguments;
    for (const ExternalTrackList* list : {&program.Companions.External_Audio, &program.Companions.External_Subtitles})
        for (const ExternalTrack& track : *list) {
            const QString path = track.Folder + track.FileName;
            if (!track.InUse || !command.Holds_Path(path))
                continue;
            add(path);
            if (track.OptionFileUsed)
                add(path + u".opt"_s);
            if (track.IsIdxPair)
                add(track.Folder + Get_Base_Name(track.FileName) + u".sub"_s);
        }
    for (const Attachment& attachment : program.Companions.Attachment_List)
        if (command.Holds_Path(attachment.FullPath))
            add(attachment.FullPath);
    return files;
}

/// True for what the option "Delete Source Video Ancillary Files" speaks of: "BASE_Track..." beside the video, and
/// attachments.
static bool Is_To_Go(const Program& program, const QString& path, const QString& base)
{
    const bool attached =
        std::any_of(program.Companions.Attachment_List.begin(), program.Companions.Attachment_List.end(),
                    [&path](const Attachment& attachment) { return attachment.FullPath == path; });
    return attached || path.startsWith(program.Options.Path_Videos + base + u"_Track"_s);
}

void Remember_Companions(const Video_Work& work)
{
    const Program& program = work.Prog;
    if (!program.Options.Delete_Video_After || !program.Options.Delete_Sundry_Files ||
        program.Options.chk_SplitVideos.Value == 1)
        return;
    const QString base = Get_Base_Name(program.Run.Current_Video_Path);
    std::vector<Waiting_Companion>& waiting = work.Walk.Run.Waiting;
    for (const QString& path : Files_Read(program)) {
        const auto known = [&path](const Waiting_Companion& companion) { return companion.Path == path; };
        const auto identity = Identity_Of(path);
        if (identity && Is_To_Go(program, path, base) && std::none_of(waiting.begin(), waiting.end(), known))
            waiting.push_back({path, *identity});
    }
}

void Trash_Source(Video_Work& work)
{
    if (!work.Source.Is_Still_There())
        return Warn(work, u"the source was changed meanwhile, so it stays"_s);
    clsStringBuilder unused;
    work.Prog.Run.Source_Deleted = Delete_To_Recycle(work.Outcome.Source, unused);
    if (!work.Prog.Run.Source_Deleted)
        Warn(work, u"the trash refused the source, so it stays"_s);
}

/// True if some video of that walk's folder would use the file and isn't done: taken, left out or failed.
static bool Is_Wanted_In(const Careful_Walk& walk, const QString& path)
{
    const JobOptions& options = walk.Prog.Options;
    const QString& attachments = walk.Folders.Attachments;
    if (!walk.Folders.Read_From(path.left(path.lastIndexOf(Path_Separator) + 1)))
        return false;
    const bool for_all = walk.Prog.Run.Add_Attachments_On && !options.Use_Attachment_Subfolders &&
                         !attachments.isEmpty() && path.startsWith(attachments);
    const QString name = File_Name_Of(path).toLower();
    const QString folder = File_Name_Of(path.left(path.lastIndexOf(Path_Separator))).toLower();
    return std::any_of(walk.Videos.begin(), walk.Videos.end(), [&](const Folder_Entry& video) {
        const QString base = Get_Base_Name(video.Name).toLower();
        return !walk.Done.contains(video.Name) && video.Kind == Entry_Kind::File &&
               (for_all || name.contains(base) || folder.contains(base));
    });
}

/// A companion that was to go and stays.
static void Tell_Kept(Program& program, const QString& path, const QString& why)
{
    const QString text = u"\"%1\" stays: "_s.arg(As_One_Line(File_Name_Of(path))) + why;
    program.Logs.Log_Faults.AppendLine(u"-- "_s + text);
    if (program.Listener)
        program.Listener->Warned(u"A companion stays"_s, text);
}

/// Moves it to the trash if it is still what the command read; where it is gone there is nothing to do.
static bool Trash_Unchanged(Program& program, const Waiting_Companion& companion)
{
    clsStringBuilder unused;
    const auto there = Identity_Of(companion.Path);
    const bool is_same = there && there->Is_Unchanged(companion.Identity);
    if (is_same && Delete_To_Recycle(companion.Path, unused))
        return true;
    if (there)
        Tell_Kept(program, companion.Path, is_same ? u"the trash refused it"_s : u"it was changed meanwhile"_s);
    return false;
}

void Trash_Companions(Video_Work& work)
{
    Careful_Run& run = work.Walk.Run;
    Program& program = work.Prog;
    std::erase_if(run.Waiting, [&](const Waiting_Companion& companion) {
        if (std::any_of(run.Walks.begin(), run.Walks.end(),
                        [&companion](const auto& walk) { return Is_Wanted_In(*walk, companion.Path); }))
            return false;
        if (!Trash_Unchanged(program, companion))
            return true;
        const QString folder = companion.Path.left(companion.Path.lastIndexOf(Path_Separator));
        const bool titled = folder.endsWith("_Attachments"_L1);
        if (titled && QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
            program.Run.Attachment_Folder_Deleted = Delete_To_Recycle(folder, program.Logs.Log_Faults);
        else
            program.Run.Ancillary_Deleted = true;
        return true;
    });
}
