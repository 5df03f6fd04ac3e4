#pragma once

#include "run/final_name.h"
#include "run/journal.h"
#include "run/run_folders.h"
#include "run/working_folder.h"
#include "support/disk_steps.h"
#include "support/thread_calls.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <map>
#include <memory>
#include <optional>
#include <vector>

struct Program;
struct Video_Work;

/// A companion that may go to the trash once every video that would use it is done.
struct Waiting_Companion
{
    QString Path;
    File_Identity Identity; ///< when the command that read it was assembled
};

struct Careful_Walk;

/// What a video has left for the log.
struct Video_Log
{
    QString Text;
    std::int16_t Separator_Written = 0;
};

/// What a careful batch carries from video to video; without "Include Subfolders" it walks one folder. Only the thread
/// that conducts it touches what stands here; threads that work on a video ask for it by Calls.
struct Careful_Run
{
    explicit Careful_Run(Program& program) : Prog(program) {}

    Careful_Run(const Careful_Run&) = delete;
    Careful_Run& operator=(const Careful_Run&) = delete;

    /// Where an error unwinds, what is in work is ended first, and what was said of it comes into the log.
    ~Careful_Run();

    Program& Prog;
    Thread_Calls Calls = {};
    std::vector<std::unique_ptr<Careful_Walk>> Walks = {}; ///< in their order
    std::vector<std::unique_ptr<Video_Work>> In_Work = {}; ///< in the order in which they were handed out
    std::vector<Waiting_Companion> Waiting = {};
    std::map<int, Video_Log> Unlogged = {}; ///< of videos that were done before one that was handed out before them
    int Handed_Out = 0;                     ///< videos
    int Logged = 0;                         ///< number of the last video that is in the log
    int Unstarted_In_A_Row = 0;             ///< videos for which a tool couldn't be started, as they ended
    bool Stopped = false;                   ///< too many of them: no other video is handed out
    std::int64_t Bytes_In_All = 0;          ///< sizes of the chosen sources, where several are in work at a time
    std::int64_t Bytes_Past = 0;            ///< of those that had their turn
    std::optional<QHash<QString, QString>> Makers = {}; ///< Makers_Of_Outputs, once an old output is in the way
};

/// What it carries from video to video of one folder.
struct Careful_Walk
{
    Careful_Walk(Careful_Run& run, const Run_Folders& folders);

    Careful_Run& Run;
    Program& Prog; ///< the run's
    Run_Folders Folders;
    Target_Before Before;
    std::vector<std::unique_ptr<Working_Folder>> Spare; ///< working folders that no video has at the moment
    std::vector<Folder_Entry> Videos; ///< every entry of the folder with a video's extension, in order
    QStringList Bases;                ///< their base names in lower case
    QHash<QString, QString> Claims;   ///< name in the target folder, by Key_Of_Name, to the source it belongs to
    QSet<QString> Done;               ///< names of the videos that are done, also before this run
    std::vector<Folder_Entry> Chosen; ///< those of Videos that this run takes in work
    std::size_t Begun = 0;            ///< so many of them were handed out
    std::size_t Ended = 0;            ///< and so many had their turn
};

/// From here on the folder's own part of the state is in force: its paths, and the names beside one another.
void Enter(const Careful_Walk& walk);

/// Takes what was said of a video over into the log, behind the videos that were handed out before it.
void Log_In_Order(Careful_Run& run, Video_Work& work);
