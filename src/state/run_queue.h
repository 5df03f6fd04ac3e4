#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// A folder that is run once the run that goes on has come to its end.
struct Queued_Run
{
    QString Folder; ///< ends in a separator
    int Videos = 0; ///< in it when it was added
};

/// What was added while a run went on, and stands below the list. No option can be changed until the last of it is run.
struct Run_Queue
{
    std::vector<Queued_Run> Runs; ///< the next one first
    QStringList Asked;            ///< folders that were dropped; the person is asked whether to run them next
};
