#pragma once

#include <cstddef>

/// The bytes of one page of memory; what grows by whole pages wastes none. The run-time error 5 if the system doesn't
/// tell.
std::size_t Page_Size();
