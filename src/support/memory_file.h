#pragma once

#include <QByteArray>
#include <QString>

/// A file that lies on no disk: for a tool that takes its input from a file only, where nothing may be written.
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
    int handle_;
};
