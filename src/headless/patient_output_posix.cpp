#include "headless/patient_output.h"
#include "headless/stop_signals.h"

#include <algorithm>
#include <poll.h>

/// Waits until there is room for a page of text, or gives the stream up.
static void Wait_For_Reader(std::FILE* stream)
{
    constexpr int slice = 100; // milliseconds
    static int slices_left = 5;
    pollfd reader = {.fd = ::fileno(stream), .events = POLLOUT, .revents = 0};
    while (reader.fd >= 0 && ::poll(&reader, 1, slices_left > 0 ? slice : 0) <= 0)
        if (Stop_Signal_Came() && --slices_left <= 0)
            return (void)(std::freopen("/dev/null", "w", stream) != nullptr);
}

/// In pieces that a pipe takes whole once it takes anything, so that no write waits for a reader.
void Write_Patiently(std::FILE* stream, const char* bytes, std::size_t size)
{
    constexpr std::size_t piece = 4096;
    for (std::size_t done = 0; done < size; done += piece) {
        Wait_For_Reader(stream);
        std::fwrite(bytes + done, 1, std::min(piece, size - done), stream);
        std::fflush(stream);
    }
}
