#pragma once

#include <QString>
#include <memory>

class QLockFile;

/// Lets one window at a time work with a program's folder; two windows with two folders run side by side. A window
/// that crashed blocks nobody. Held until the object ends.
class Instance_Lock
{
  public:
    Instance_Lock();
    Instance_Lock(const Instance_Lock&) = delete;
    Instance_Lock& operator=(const Instance_Lock&) = delete;
    ~Instance_Lock();

    /// False only if another window holds the folder. A folder in which no lock can be made counts as free.
    bool Take(const QString& app_folder);

  private:
    std::unique_ptr<QLockFile> lock_;
};
