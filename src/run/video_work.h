#pragma once

#include "inspect/output_check.h"
#include "run/final_name.h"
#include "run/worker_ports.h"
#include "run/working_folder.h"
#include "state/program.h"
#include "state/run_listener.h"
#include "support/disk_steps.h"

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <memory>
#include <thread>

struct Careful_Walk;

/// One video of a careful batch on its way: what its steps leave for one another. Each step returns false where the
/// video goes no further; its outcome then says why.
///
/// It has a program of its own, so that its thread meets nobody in it: the options as they were at the press and the
/// folder's paths, and what is found out of the video and said of it.
struct Video_Work
{
    /// The walk's folder has to be in force in the run's program.
    Video_Work(Careful_Walk& walk, const Folder_Entry& entry);
    Video_Work(const Video_Work&) = delete;
    Video_Work& operator=(const Video_Work&) = delete;

    double Seconds() const { return static_cast<double>(Clock.elapsed()) / 1000; }

    Careful_Walk& Walk;
    Worker_Operator Person;
    Worker_Listener Listener;
    Program Prog{Person};
    int Number; ///< from 1, in the order in which the run hands its videos out
    std::unique_ptr<Working_Folder> Working;
    File_Outcome Outcome;
    Held_File Source;
    Name_Choice Names;
    Asked_Output Asked;
    QString Words;     ///< all that mkvmerge printed but its progress
    QStringList Made;  ///< paths in the working folder
    QStringList Final; ///< their names in the target folder, place by place
    QString Hash;
    int Percent = 0;        ///< for the conductor
    double Room_Needed = 0; ///< bytes; for the conductor
    bool Split = false;
    bool Has_Name = false; ///< its output has one that is free
    bool Goes_On = false;  ///< no step has given up
    bool Tool_Was_Asked = false;
    bool Tool_Not_Started = false;
    QElapsedTimer Clock;
    std::jthread Thread; ///< the last one: it has ended when the rest goes
};

/// Where mkvmerge writes the output, or makes the names of the pieces from, and where it finds the chapters: paths in
/// the working folder of whose names no letter means anything to a tool.
QString Working_Output(const Video_Work& work);
QString Working_Chapters(const Video_Work& work);

/// A step's end, with its reason in words: the video goes no further. Returns false, for the step to return it.
bool Give_Up(Video_Work& work, File_Outcome::Kind status, const QString& reason);
bool Fail(Video_Work& work, const QString& reason);
bool Halted(Video_Work& work);

/// Something about the video in words; it goes on.
void Warn(Video_Work& work, const QString& warning);

/// True if the source is to go to the trash when all is well.
bool Goes_To_Trash(const Video_Work& work);

/// Takes note of how the start of a tool went. One that couldn't be started says nothing about the video.
void Note_Start_Of_Tool(Video_Work& work);

/// A line of mkvmerge as everybody is to read it: with the final names in the place of those in the working folder.
QString With_Final_Names(const Video_Work& work, QString line);
