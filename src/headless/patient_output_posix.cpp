#include "headless/patient_output.h"

#include "headless/stop_signals.h"

#include <poll.h>

void Wait_For_Reader(std::FILE* stream)
{
    constexpr int slice = 100; // milliseconds
    pollfd reader = {.fd = ::fileno(stream), .events = POLLOUT, .revents = 0};
    for (int patience = 5; reader.fd >= 0 && ::poll(&reader, 1, slice) <= 0;)
        if (Stop_Signal_Came() && --patience == 0) {
            return (void)(std::freopen("/dev/null", "w", stream) != nullptr);
        }
}
