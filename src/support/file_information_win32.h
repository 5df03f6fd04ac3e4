#pragma once

#include "support/file_identity.h"

/// What an open handle leads to.

/// Its identity; nothing for what is no file or folder.
std::optional<File_Identity> Identity_Of_Handle(void* handle);

/// True for a regular file; false for a folder, a device, a pipe, and for a link that was opened itself.
bool Is_Plain_Handle(void* handle);
