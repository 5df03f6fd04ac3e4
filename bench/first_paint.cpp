#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

using Clock = std::chrono::steady_clock;
using Pixels = std::vector<std::uint32_t>;

/// A frame as it was seen first, and when.
struct Frame
{
    double Milliseconds;
    Pixels Seen;
};

/// How many of the pixels that are looked at differ.
static std::size_t Difference(const Pixels& one, const Pixels& other)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        count += one[i] != other[i] ? 1 : 0;
    return count;
}

/// A window covers hundreds of the pixels that are looked at, a pointer only a few; the bare screen is black.
static std::size_t Painted(const Pixels& pixels)
{
    return pixels.size() - static_cast<std::size_t>(std::count(pixels.begin(), pixels.end(), 0U));
}

/// The first frame from which on all look like the last, but for a word that became grey or black: 1 in 200.
static double Complete_At(const std::vector<Frame>& frames)
{
    const Pixels& last = frames.back().Seen;
    std::size_t at = frames.size() - 1;
    while (at > 0 && Difference(frames[at - 1].Seen, last) * 200 < Painted(last))
        --at;
    return frames[at].Milliseconds;
}

/// Milliseconds from the start of a program to its first pixels on a screen that nobody sees, and to its picture as it
/// stays: an empty frame that comes early is none.
/// usage: first_paint FRAMEBUFFER PROGRAM [ARGUMENT...]      (FRAMEBUFFER as Xvfb -fbdir keeps it, all black at first)
int main(int argc, char** argv)
{
    const int file = argc >= 3 ? ::open(argv[1], O_RDONLY) : -1;
    struct stat known = {};
    if (file < 0 || ::fstat(file, &known) != 0) {
        std::fputs("usage: first_paint FRAMEBUFFER PROGRAM [ARGUMENT...]\n", stderr);
        return 64;
    }
    const auto size = static_cast<std::size_t>(known.st_size);
    const void* mapped = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0);
    if (mapped == MAP_FAILED)
        return 1;
    const auto* pixels = static_cast<const volatile std::uint32_t*>(mapped);
    const std::size_t last = size / sizeof(std::uint32_t) - 1;
    // The screen's pixels end the file. A step that divides no width looks at every column.
    const auto look = [&] {
        Pixels seen;
        for (std::size_t i = last; i > last / 50; i -= 61)
            seen.push_back(pixels[i] & 0xffffffU);
        return seen;
    };

    constexpr std::size_t least = 500;
    constexpr auto stillness = std::chrono::milliseconds(700);
    pid_t child = 0;
    const Clock::time_point from = Clock::now();
    if (::posix_spawn(&child, argv[2], nullptr, nullptr, argv + 2, environ) != 0)
        return 1;
    std::vector<Frame> frames;
    Clock::time_point changed = from;
    while (Clock::now() - from < std::chrono::seconds(20) && (frames.empty() || Clock::now() - changed < stillness)) {
        std::this_thread::sleep_for(std::chrono::microseconds(500));
        Pixels seen = look();
        if (frames.empty() ? Painted(seen) < least : seen == frames.back().Seen)
            continue;
        changed = Clock::now();
        frames.push_back({std::chrono::duration<double, std::milli>(changed - from).count(), std::move(seen)});
    }
    if (!frames.empty())
        std::printf("%.1f %.1f\n", frames.front().Milliseconds, Complete_At(frames));
    ::kill(child, SIGTERM);
    ::waitpid(child, nullptr, 0);
    // The screen is black again once the window is gone.
    const Clock::time_point ended = Clock::now();
    while (Painted(look()) >= least && Clock::now() - ended < std::chrono::seconds(20))
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return frames.empty() ? 1 : 0;
}
