#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// The file in which a new process log is put together before it takes the log's name. What a run that died left in it
/// is kept, and the new text lands behind. Every failure is the run-time error of the file operation.
class Log_Work_File
{
  public:
    /// Opens `path` for appending. A leftover that breaks off inside a line gets its line end.
    explicit Log_Work_File(const QString& path);

    void Append(const QByteArray& bytes);

    /// Copies a whole file behind what is there, a megabyte at a time, and ends its last line. If that fails the work
    /// file is cut back to where it was, so that the next try doesn't find half an old log in it.
    void Append_File(const QString& path);

    /// Everything written so far is on the disk when this returns.
    void Flush_To_Disk();

  private:
    QFile file_;
};
