#pragma once

#include <QString>
#include <functional>
#include <memory>

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

    /// Behind a Take that failed: tells the window that holds the folder that it is wanted.
    void Call_Holder();
    /// Behind a Take that succeeded: what to do when another start calls this window.
    void When_Called(std::function<void()> answer);

  private:
    struct Platform; ///< what the lock is made of
    std::unique_ptr<Platform> platform_;
};
