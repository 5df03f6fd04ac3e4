#pragma once

#include "run/final_name.h"
#include "run/journal.h"
#include "run/run_folders.h"
#include "run/working_folder.h"
#include "support/disk_steps.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

struct Program;

/// A companion that may go to the trash once every video that would use it is done.
struct Waiting_Companion
{
    QString Path;
    File_Identity Identity; ///< when the command that read it was assembled
};

struct Careful_Walk;

/// What a careful batch carries from folder to folder; without "Include Subfolders" there is one.
struct Careful_Run
{
    Program& Prog;
    std::vector<std::unique_ptr<Careful_Walk>> Walks = {}; ///< in their order
    std::vector<Waiting_Companion> Waiting = {};
    int Unstarted_In_A_Row = 0;                         ///< videos for which a tool couldn't be started
    std::optional<QHash<QString, QString>> Makers = {}; ///< Makers_Of_Outputs, once an old output is in the way
};

/// What it carries from video to video of one folder.
struct Careful_Walk
{
    Careful_Walk(Careful_Run& run, const Run_Folders& folders);

    Careful_Run& Run;
    Program& Prog;
    Run_Folders Folders;
    Target_Before Before;
    Working_Folder Working;
    std::vector<Folder_Entry> Videos; ///< every entry of the folder with a video's extension, in order
    QStringList Bases;                ///< their base names in lower case
    QHash<QString, QString> Claims;   ///< name in the target folder to the source it belongs to in this run
    QSet<QString> Done;               ///< names of the videos that are done, also before this run
    std::vector<Folder_Entry> Chosen; ///< those of Videos that this run takes in work
};

/// From here on the folder's own part of the state is in force: its paths, and the names beside one another.
void Enter(const Careful_Walk& walk);
