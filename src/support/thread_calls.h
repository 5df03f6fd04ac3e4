#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// What threads at work have the thread do that conducts them: calls, done one after the other in the order in which
/// they were handed over, on the thread that made this object. So what only the conductor may touch needs no lock.
class Thread_Calls
{
  public:
    using Call = std::function<void()>;

    /// Has it done there and doesn't wait. Once closed, nothing is done any more.
    void Post(Call call);

    /// Has it done there and returns behind it; what it throws is thrown here. On the conductor's own thread it's
    /// simply done. Throws std::runtime_error once closed.
    void Do(const Call& call);

    /// On the conductor's thread: does what was handed over. Where nothing was it waits so long for something.
    void Take(std::chrono::milliseconds longest);

    /// On the conductor's thread: nothing is done any more, and nobody waits in vain.
    void Close();

    /// The conductor sets it when the run is halted; the threads look at it.
    std::atomic<bool> Halted = false;

  private:
    const std::thread::id home_ = std::this_thread::get_id();
    std::mutex mutex_;
    std::condition_variable came_; ///< something was handed over
    std::condition_variable done_; ///< something that somebody waits for was done, or nothing will be any more
    std::deque<Call> calls_;
    bool closed_ = false;
};
