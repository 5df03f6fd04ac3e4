#pragma once

#include "state/run_tally.h"
#include "support/command_line.h"

#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

/// One of several parts of the videos that a run is one of; each machine takes another.
struct Shard
{
    int Number = 1; ///< from 1
    int Of = 1;
};

/// Which of a folder's videos a careful batch takes in work.
struct Run_Choice
{
    bool Resume = false;                     ///< not those that the journal has as done, if nothing has changed since
    bool Only_Failed = false;                ///< only those whose last result in the journal is a failure
    QStringList Only = {};                   ///< wild-card patterns of names; empty: all
    QStringList Leave_Out = {};              ///< wild-card patterns of names
    Shard Part = {};                         ///< only those whose names fall into it
    std::optional<QSet<QString>> Names = {}; ///< these only, as the list has them ticked; nothing: all
};

/// What a careful batch tells the parts that it shares with the classic one.
struct Careful_Video
{
    QByteArray Chapter_Xml; ///< the chapters that were made of a text, for a file of our own; empty: none were
    QString Chapter_Text;   ///< the path of that text
    QStringList Problems;   ///< of the files beside it, in words: a dry run goes on past them, to find all of them
};

/// The state of a run. Never reset as a whole: what a run doesn't clear lives on into the next.
struct Run_State
{
    bool Halt_Requested = false;
    bool Run_In_Progress = false;
    bool Press_In_Work = false;             ///< the run button's handler is at work: before, in and behind a run
    QDateTime Started;                      ///< by the program's clock; invalid: nothing has run yet
    Run_Tally Tally;                        ///< of the run that goes on, else of the last one
    bool Halt_Asked = false;                ///< the person was asked in this run what a halt is to stop
    bool Halt_After_Video = false;          ///< careful: the run ends behind the videos in work
    std::int64_t Press_Time = 0;            ///< when the mouse pressed the run button last; 0: a key did
    QStringList Video_File_List{QString()}; ///< accepted names; an empty first entry: nothing found

    std::int16_t Files_Total = 0;
    std::int16_t Files_Left = 0;
    std::int16_t File_Index = 0;
    QString Current_Video_Path;
    QString Source_In_Work; ///< classic: of the file that has its turn, whatever it is
    bool Source_Deleted = false;
    bool Ancillary_Deleted = false;
    bool Attachment_Files_Deleted = false;
    bool Attachment_Folder_Deleted = false;
    std::int16_t Digest_Separator_Written = 0;
    Command_Line Mkvmerge_Arguments; ///< the command of the current mkvmerge run
    QString Output_Path;             ///< the file that command writes
    QString Half_Written_Output;     ///< what mkvmerge was writing when a halt killed it; empty: nothing
    QStringList Shared_Outputs;      ///< warnings of this run: two sources write one file
    QStringList Failed_Videos;       ///< of this run: name and reason of each video that failed, a line each

    bool Strip_Audio_Titles = false; ///< sampled at the press of the button, as the two below
    bool Strip_Subtitle_Titles = false;
    bool Add_Attachments_On = false;

    QStringList Sensible_Bases;  ///< base names of the folder's videos in lower case, if the longest one counts
    bool Process_Failed = false; ///< a line of mkvmerge's output spoke of a failure

    std::int16_t Pipe_Result = 1;     ///< 0: the last child's pipe could not be made
    std::int32_t Process_Result = -1; ///< -1: the last child was started; else the system's error number
    QString Last_Error_Text;
    std::optional<int> Exit_Status; ///< of the last child: 0 to 255, or minus a signal's number; nothing: never reaped

    QString Tool_Error;        ///< what the last mkvmerge said behind "Error:", first line; empty: nothing
    QStringList Tool_Warnings; ///< what it said behind "Warning:"
    QString Tool_Last_Line;    ///< the last thing it said
    QString File_Failure;      ///< why the file in work can't be done, in words; empty: nothing is known against it

    bool Kill_By_Name = true; ///< a halt kills every mkvmerge of this user; false: the run's own child only
    bool Dry_Run = false;     ///< inspect and assemble only: nothing is run, written, converted or trashed

    bool Checking = false;   ///< a dry run of the window that fills the list
    bool Run_Wanted = false; ///< the run button was pressed in a check: once that is over

    std::optional<bool> Careful_Asked = {}; ///< careful or classic for this run, whatever the settings say
    bool Careful = false;                   ///< the run that goes on is a careful one
    Run_Choice Choice;
    int At_Once = 1;       ///< careful: on how many videos the run works at a time, at most
    int Videos_Chosen = 0; ///< careful: how many videos the run takes in work
    int Videos_Done = 0;   ///< careful: how many had their turn
    Careful_Video Video;
    QString Options_In_Force; ///< of the folder in work, for the hashes of its videos; empty: none is
};
