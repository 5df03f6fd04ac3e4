#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// A file that is made ahead of the log: the one that keeps the new entry until the log holds it, or the one that is to
/// take the log's place. Every failure is the run-time error of the file operation.
class Log_Work_File
{
  public:
    enum class Leftover
    {
        Kept, ///< what a run that died left in it stays, and ends its last line
        Dropped
    };

    /// Opens `path` for appending. An error if something that is no plain file, or a link, has that name.
    Log_Work_File(const QString& path, Leftover leftover);

    void Append(const QByteArray& bytes);
    /// Appends a whole file, a megabyte at a time, and ends its last line.
    void Append_File(const QString& path);
    /// Everything written so far is on the disk when this returns.
    void Flush_To_Disk();

  private:
    QFile file_;
};

/// True if the log at `path` begins with all that the file at `head` holds, and that isn't nothing.
bool Begins_With_File(const QString& path, const QString& head);
