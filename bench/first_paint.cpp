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

using Clock = std::chrono::steady_clock;

/// Milliseconds from the start of a program to its first pixel on a screen that nobody sees.
/// usage: first_paint FRAMEBUFFER PROGRAM      (FRAMEBUFFER as Xvfb -fbdir keeps it, all black at first)
int main(int argc, char** argv)
{
    const int file = argc == 3 ? ::open(argv[1], O_RDONLY) : -1;
    struct stat known = {};
    if (file < 0 || ::fstat(file, &known) != 0) {
        std::fputs("usage: first_paint FRAMEBUFFER PROGRAM\n", stderr);
        return 64;
    }
    const auto size = static_cast<std::size_t>(known.st_size);
    const void* mapped = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0);
    if (mapped == MAP_FAILED)
        return 1;
    const auto* pixels = static_cast<const volatile std::uint32_t*>(mapped);
    const std::size_t last = size / sizeof(std::uint32_t) - 1;
    // The screen's pixels end the file. A window covers hundreds of those that are looked at, a pointer only a few.
    const auto painted = [&] {
        int seen = 0;
        for (std::size_t i = last; i > last / 10; i -= 997)
            seen += (pixels[i] & 0xffffffU) != 0 ? 1 : 0;
        return seen > 100;
    };

    pid_t child = 0;
    const Clock::time_point from = Clock::now();
    if (::posix_spawn(&child, argv[2], nullptr, nullptr, argv + 2, environ) != 0)
        return 1;
    bool seen = painted();
    while (!seen && Clock::now() - from < std::chrono::seconds(10)) {
        std::this_thread::sleep_for(std::chrono::microseconds(500));
        seen = painted();
    }
    std::printf("%.1f\n", std::chrono::duration<double, std::milli>(Clock::now() - from).count());
    ::kill(child, SIGTERM);
    ::waitpid(child, nullptr, 0);
    // The screen is black again once the window is gone.
    while (painted() && Clock::now() - from < std::chrono::seconds(20))
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return seen ? 0 : 1;
}
