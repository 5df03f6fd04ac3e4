#include "run/careful_choice.h"

#include "command/command_frame.h"
#include "inspect/subfolders.h"
#include "inspect/video_names.h"
#include "run/careful_walk.h"
#include "run/journal_results.h"
#include "state/program.h"
#include "support/paths.h"

#include <QCryptographicHash>
#include <QtEndian>
#include <algorithm>

using namespace Qt::StringLiterals;

/// The folders that the run walks.
static Subfolders Folders_To_Walk(const Program& program)
{
    return program.Settings.Extensions.Include_Subfolders
               ? Find_Subfolders(program.Options.Path_Videos, program.Options.Path_Target)
               : Subfolders();
}

static void Tell(const Program& program, const QString& title, const QString& text)
{
    if (program.Listener)
        program.Listener->Warned(title, text);
}

/// What a run that was killed left behind, in whatever target, is tidied up at the next start.
static void Clean_Up(Program& program)
{
    if (program.Run.Dry_Run)
        return;
    for (const QString& line : Clean_Up_Working_Folders(program.Settings.App_Folder)) {
        Tell(program, u"A working folder was left behind"_s, line);
        program.Logs.Log_Faults.AppendLine(u"-- "_s + line);
    }
}

QString Find_Careful_Videos(Program& program)
{
    int error = 0;
    QStringList names;
    for (const QString& sub : Folders_To_Walk(program).Paths) {
        int unread = 0;
        for (const Folder_Entry& entry : Video_Entries(program.Options.Path_Videos + sub, unread))
            names += sub + entry.Name;
        error = sub.isEmpty() ? unread : error;
    }
    program.Run.Video_File_List = names.isEmpty() ? QStringList{QString()} : names;
    if (!names.isEmpty())
        return {};
    Clean_Up(program);
    if (error != 0)
        return u"The Video path can't be read: "_s + System_Words(error);
    program.Form.lbl_VideoPathFault.Caption = u"NO VIDEO FILES FOUND!"_s;
    return u"NO VIDEO FILES FOUND!"_s;
}

/// The same on every machine, and whatever else the folder holds. By the output's name, so that two videos that make
/// one output are in one part, where that is noticed.
static bool Is_In_Part(const Careful_Walk& walk, const QString& name)
{
    const Shard& part = walk.Prog.Run.Choice.Part;
    if (part.Of == 1)
        return true;
    QString output = walk.Folders.Sub + Output_Base_Of(walk.Prog, walk.Folders.Videos + name).toLower();
    output.replace(Path_Separator, u'/');
    const QByteArray hash = QCryptographicHash::hash(output.toUtf8(), QCryptographicHash::Sha1);
    return qFromBigEndian<quint32>(hash.constData()) % static_cast<quint32>(part.Of) + 1 ==
           static_cast<quint32>(part.Number);
}

static bool Fits_One(const Careful_Walk& walk, const QString& name, const QStringList& patterns)
{
    return std::any_of(patterns.begin(), patterns.end(), [&](const QString& pattern) {
        return Match_File_Masks(name, pattern) || Match_File_Masks(walk.Folders.Sub + name, pattern);
    });
}

/// What the journal has as done already.
struct Done_Already
{
    int Files = 0;
    QStringList With_Warnings; ///< names of those of them that were done with warnings
};

/// Fills Chosen with the videos that the person asked for, of those there are. Those that were done before count as
/// done: also with warnings, as the output is whole, but then the source and its companions stay.
static void Choose_Videos(Careful_Walk& walk, const Journal_Results& results, Done_Already& before)
{
    const Program& program = walk.Prog;
    const Run_Choice& choice = program.Run.Choice;
    Known_Listings known;
    for (const Folder_Entry& video : walk.Videos) {
        if (choice.Names && !choice.Names->contains(walk.Folders.Sub + video.Name))
            continue;
        if ((!choice.Only.isEmpty() && !Fits_One(walk, video.Name, choice.Only)) ||
            Fits_One(walk, video.Name, choice.Leave_Out) || !Is_In_Part(walk, video.Name))
            continue;
        const QString source = walk.Folders.Videos + video.Name;
        if (choice.Only_Failed && results.value(source).Status != "failed"_L1)
            continue;
        const bool was_done = results.value(source).Status == "done"_L1; // the hash takes a while
        if (choice.Resume && was_done && Is_Done_Before(results, source, Hash_Of_Video(program, source, known))) {
            ++before.Files;
            if (!results.value(source).Warnings.isEmpty())
                before.With_Warnings += walk.Folders.Sub + video.Name;
            else
                walk.Done.insert(video.Name);
            continue;
        }
        walk.Chosen.push_back(video);
    }
}

/// Looks at a folder once, and keeps what it holds.
static void Look_At_Folder(Careful_Walk& walk, const QStringList& walked)
{
    int error = 0;
    walk.Videos = Video_Entries(walk.Folders.Videos, error);
    // A folder that is walked itself is no entry, whatever its name ends in.
    std::erase_if(walk.Videos, [&](const Folder_Entry& entry) {
        return entry.Kind == Entry_Kind::Folder && walked.contains(walk.Folders.Sub + entry.Name + Path_Separator);
    });
    for (const Folder_Entry& video : walk.Videos)
        walk.Bases += Get_Base_Name(video.Name).toLower();
    // One below is told with those that couldn't be walked.
    if (error != 0 && walk.Folders.Sub.isEmpty())
        Tell(walk.Prog, u"The videos' folder"_s,
             u"The videos' folder couldn't be read to its end, and what was listed of it is processed: "_s +
                 System_Words(error));
}

void Choose_Work(Careful_Run& run)
{
    Program& program = run.Prog;
    Clean_Up(program);
    const Run_Folders root = Folders_Of(program.Options);
    const Subfolders folders = Folders_To_Walk(program);
    for (const QString& unread : folders.Unread)
        Tell(program, u"A folder below"_s, u"A folder couldn't be read to its end: "_s + unread);
    for (const QString& sub : folders.Paths) {
        const auto& walk = run.Walks.emplace_back(
            std::make_unique<Careful_Walk>(run, sub.isEmpty() ? root : Folders_Below(root, sub)));
        Look_At_Folder(*walk, folders.Paths);
    }

    const Run_Choice& choice = program.Run.Choice;
    const bool asks = choice.Resume || choice.Only_Failed;
    const Journal_Results results = asks ? Read_Journal(program.Settings.App_Folder) : Journal_Results();
    Done_Already before;
    program.Run.Videos_Chosen = 0;
    QStringList names;
    QStringList sources;
    for (const auto& walk : run.Walks) {
        Enter(*walk);
        Choose_Videos(*walk, results, before);
        program.Run.Videos_Chosen += static_cast<int>(walk->Chosen.size());
        for (const Folder_Entry& video : walk->Chosen) {
            names += walk->Folders.Sub + video.Name;
            sources += walk->Folders.Videos + video.Name;
        }
    }
    Use_Folders(root, program.Options);
    if (const QString unnoted = Note_Start(program, names); !unnoted.isEmpty())
        Tell(program, u"The journal"_s, unnoted);
    if (before.Files > 0 && program.Listener)
        program.Listener->Done_Before(before.Files, before.With_Warnings);
    if (program.Listener)
        program.Listener->Videos_Chosen(sources);
}
