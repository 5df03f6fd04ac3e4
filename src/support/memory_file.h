#pragma once

#include <QByteArray>
#include <QString>

/// A file that lies on no disk: for a tool that takes its input from a file only, where nothing may be written. On
/// Windows, which knows none, a temporary file that is kept off the disk as far as that goes.
class Memory_File
{
  public:
    explicit Memory_File(const QByteArray& content);
    Memory_File(const Memory_File&) = delete;
    Memory_File& operator=(const Memory_File&) = delete;
    ~Memory_File();

    /// Where a child of this process finds it while this lives; a path without a file if it couldn't be made.
    QString Path() const;

  private:
    int handle_ = -1;
    QString path_;
};
