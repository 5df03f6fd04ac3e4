#include "support/thread_calls.h"

#include <exception>
#include <stdexcept>
#include <utility>

void Thread_Calls::Post(Call call)
{
    const std::lock_guard lock(mutex_);
    if (closed_)
        return;
    calls_.push_back(std::move(call));
    came_.notify_one();
}

void Thread_Calls::Do(const Call& call)
{
    if (std::this_thread::get_id() == home_)
        return call();
    bool is_done = false;
    std::exception_ptr thrown;
    Post([&] {
        try {
            call();
        } catch (...) {
            thrown = std::current_exception();
        }
        const std::lock_guard lock(mutex_);
        is_done = true;
        done_.notify_all();
    });
    std::unique_lock lock(mutex_);
    done_.wait(lock, [&] { return is_done || closed_; });
    if (thrown)
        std::rethrow_exception(thrown);
    if (!is_done)
        throw std::runtime_error("the run was broken off");
}

void Thread_Calls::Take(std::chrono::milliseconds longest)
{
    std::unique_lock lock(mutex_);
    came_.wait_for(lock, longest, [this] { return !calls_.empty(); });
    while (!calls_.empty()) {
        const Call call = std::move(calls_.front());
        calls_.pop_front();
        lock.unlock();
        call();
        lock.lock();
    }
}

void Thread_Calls::Close()
{
    const std::lock_guard lock(mutex_);
    closed_ = true;
    calls_.clear();
    done_.notify_all();
}
