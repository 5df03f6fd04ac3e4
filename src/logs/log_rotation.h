#pragma once

#include <QString>
#include <QStringList>

class clsStringBuilder;
class Operator;

/// The files of the process log, all in the program's folder.
QString Process_Log_Path(const QString& app_folder);
/// The work file: the entry that is being written.
QString Process_Log_Work_Path(const QString& app_folder);
/// The file that is to take the log's place: the new entry and the log's old text.
QString Process_Log_Whole_Path(const QString& app_folder);
/// A new name for an entry that has to wait for the log; such names sort by their time.
QString New_Waiting_Entry_Path(const QString& app_folder);
/// The names of the entries that wait, oldest first.
QStringList Waiting_Entries(const QString& app_folder);
/// An earlier log: 'A' is the newest, 'E' the oldest.
QString Process_Log_Generation(const QString& app_folder, char16_t letter);

enum class Rotation
{
    No_Log,  ///< there is no current log; nothing was changed
    Rotated, ///< A holds the log
    Refused  ///< the oldest log could not be moved to the trash; nothing was changed
};
/// What becomes of the log's own name.
enum class Log_Name
{
    Freed,
    Kept_For_Replacing ///< the log is A under a second name; the caller renames the new log over the first
};

/// Moves every generation on by one letter and the current log to A. The oldest goes to the trash, and only if the one
/// before it needs its place: a gap is left as it is. Three pumps follow each move. Where the file system can't give a
/// file two names, the log's name is free in either case.
Rotation Rotate_Logs(const QString& app_folder, Log_Name name, Operator& person, clsStringBuilder& faults);

/// Gives `from` the name `to`, over what is there; the run-time error of the file operation if it can't.
void Rename_Log(const QString& from, const QString& to);
