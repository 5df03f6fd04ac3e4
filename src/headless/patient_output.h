#pragma once

#include <cstddef>
#include <cstdio>

/// Writes bytes to a stream, all of which are out when this returns, and waits until whoever reads has room for them.
/// Once a stop signal has come it waits for half a second at most, whatever the stream and however many bytes there
/// are; then the stream is closed for all that follows, so that the run ends though nobody reads.
void Write_Patiently(std::FILE* stream, const char* bytes, std::size_t size);
