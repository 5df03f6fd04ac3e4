#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>
#include <cstdint>

/// What the journals in the program's folder say of each video, also those of other machines that share the folder.
/// --resume, --failed, the window's list and `vantorra-batch journal` go by it.

/// A video's last result, as it was noted.
struct Journal_Entry
{
    QString Status; ///< "done", "failed" or "skipped"; "not run" only if it never had another
    QString Hash;   ///< of options, source and companions: what would be made again
    QStringList Outputs;
    std::int64_t Output_Bytes = 0; ///< of all outputs
    QStringList Warnings;          ///< in words
    QString Reason;                ///< in words
    QString Host;                  ///< the machine that ran it; empty: a line of before hosts were noted
    QDateTime When;
};

/// By source path: the newest line of each counts.
using Journal_Results = QHash<QString, Journal_Entry>;

/// Reads every journal file. What is no line of a journal is passed over.
Journal_Results Read_Journal(const QString& app_folder);

/// The video's name that each output was made of last, by Key_Of_Name of the output's path, as far as it still stands
/// there.
QHash<QString, QString> Makers_Of_Outputs(const Journal_Results& results);

/// The size of all these files; one that is gone has none.
std::int64_t Bytes_Of_All(const QStringList& files);

/// True if the journal has this video as done by the same options and files, and the output is still there as it was.
bool Is_Done_Before(const Journal_Results& results, const QString& source, const QString& hash);
