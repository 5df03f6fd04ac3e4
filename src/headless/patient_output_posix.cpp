#include "headless/patient_output.h"

#include "headless/stop_signals.h"

#include <poll.h>

void Wait_For_Reader(std::FILE* stream)
{
    constexpr int slice = 100; // milliseconds
    static int slices_left = 5;
    pollfd reader = {.fd = ::fileno(stream), .events = POLLOUT, .revents = 0};
    while (reader.fd >= 0 && ::poll(&reader, 1, slices_left > 0 ? slice : 0) <= 0)
        if (Stop_Signal_Came() && --slices_left <= 0)
            return (void)(std::freopen("/dev/null", "w", stream) != nullptr);
}
