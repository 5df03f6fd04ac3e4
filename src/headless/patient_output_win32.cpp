#include "headless/patient_output.h"
#include "headless/stop_signals.h"

#include <io.h>
#include <windows.h>

/// A write that may have to wait, for a thread of its own.
struct Pending_Write
{
    std::FILE* Stream;
    const char* Bytes;
    std::size_t Size;
};

static DWORD WINAPI Write_Now(void* parameter)
{
    const auto& write = *static_cast<const Pending_Write*>(parameter);
    std::fwrite(write.Bytes, 1, write.Size, write.Stream);
    std::fflush(write.Stream);
    return 0;
}

static bool Is_Pipe(std::FILE* stream)
{
    return GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)))) == FILE_TYPE_PIPE;
}

void Write_Patiently(std::FILE* stream, const char* bytes, std::size_t size)
{
    constexpr DWORD slice = 100; // milliseconds
    static int slices_left = 5;
    Pending_Write write = {.Stream = stream, .Bytes = bytes, .Size = size};
    // Nobody can be asked whether a pipe has room; but a write that waits can be called off from beside it.
    const HANDLE writer = Is_Pipe(stream) ? CreateThread(nullptr, 0, Write_Now, &write, 0, nullptr) : nullptr;
    if (writer == nullptr) {
        Write_Now(&write);
        return;
    }
    bool given_up = false;
    while (WaitForSingleObject(writer, slices_left > 0 ? slice : 1) != WAIT_OBJECT_0)
        if (Stop_Signal_Came() && --slices_left <= 0) {
            given_up = true;
            CancelSynchronousIo(writer);
        }
    CloseHandle(writer);
    if (given_up)
        static_cast<void>(std::freopen("NUL", "w", stream));
}
