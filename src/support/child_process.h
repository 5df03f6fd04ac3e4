#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <memory>
#include <optional>

/// One child with both output streams in one pipe (or each in its own), no console and no standard input, in a process
/// group of its own. Hands out what one read delivered and never assembles lines. Used by the tool runners only.
///
/// The system kills a child whose starter ends, by whatever signal: the process, and the thread too.
/// The destructor kills and reaps a child that still runs: a run-time error that unwinds through a run leaves none.
class Child_Process
{
  public:
    enum class Started
    {
        Yes,
        No_Pipe,
        No_Process
    };
    enum class Read
    {
        Data,
        Nothing_Yet,
        Ended
    };

    enum class Outputs
    {
        Together, ///< standard output and messages in one pipe, in the order in which they were written
        Apart     ///< a pipe each
    };

    Child_Process();
    Child_Process(const Child_Process&) = delete;
    Child_Process& operator=(const Child_Process&) = delete;
    ~Child_Process();

    /// Starts `executable` (an absolute path; PATH is not searched) with `arguments`. A program that can't be executed
    /// is No_Process with the system's error number in System_Error, never a child that ends with 127.
    Started Start(const QString& executable, const QStringList& arguments, Outputs outputs = Outputs::Together);

    /// What one read delivers, up to `most` bytes, into `chunk`. Returns after at most 50 ms with Nothing_Yet while the
    /// child is silent. Ended: every writer has closed the pipe.
    Read Read_Chunk(QByteArray& chunk, std::size_t most);

    /// The same for a child with its outputs apart: what one read of each pipe delivers. Ended: both are closed.
    Read Read_Chunks(QByteArray& output, QByteArray& messages, std::size_t most);

    /// Kills the child with all that it has started, and reaps it.
    void Kill();

    /// Waits until the child has ended, and reaps it. `between` is called at least every 50 ms and may end the wait by
    /// returning false.
    template <typename Between>
    bool Wait(Between between)
    {
        while (!Reap(50))
            if (!between())
                return false;
        return true;
    }

    /// The system's own error number of the last failed start; Format_System_Error has its words.
    int System_Error() const { return system_error_; }

    /// The exit status of a reaped child: 0 to 255, or less than 0 if it didn't end by itself; What_Ended has its
    /// words.
    std::optional<int> Exit_Status() const { return exit_status_; }

    /// The child's process number, 0 if there is none.
    long Process_Number() const { return process_; }

  private:
    struct Platform; ///< our ends of the pipes, and what else the platform holds of a child
    /// What two pipes together have delivered.
    static Read Both(Read one, Read other);
    bool Reap(int milliseconds);
    void Close_Pipes();

    std::unique_ptr<Platform> platform_;
    long process_ = 0;
    int system_error_ = 0;
    std::optional<int> exit_status_;
};
