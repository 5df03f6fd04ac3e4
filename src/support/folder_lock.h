#pragma once

#include <QString>
#include <cstdint>

/// Holds a folder for one process at a time, so that two programs that share a folder don't mix what they write there.
/// The lock is the system's own on the folder itself: no file appears, and a process that dies lets go of it. On
/// Windows, where a folder can't be locked, it is a hidden file in it that the system removes with its holder. Every
/// user asks for it; nothing stops a program that doesn't.
class Folder_Lock
{
  public:
    Folder_Lock() = default;
    Folder_Lock(const Folder_Lock&) = delete;
    Folder_Lock& operator=(const Folder_Lock&) = delete;
    ~Folder_Lock();

    /// Tries once. False: another process holds the folder. The run-time error of the file operation if the folder
    /// can't be opened. A file system that knows no locks counts as locked: there is nothing better to be had.
    bool Try(const QString& folder);

  private:
    std::intptr_t handle_ = -1; ///< the system's
};
