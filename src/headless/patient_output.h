#pragma once

#include <cstdio>

/// Waits until whoever reads `stream` has room for a page of text. Once a stop signal has come it waits for half a
/// second at most, whatever the stream and however many pages there are; then the stream is closed for all that
/// follows, so that the run ends though nobody reads.
void Wait_For_Reader(std::FILE* stream);
