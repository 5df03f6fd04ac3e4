#pragma once

#include <QString>
#include <memory>

/// Makes a file that is there and can't be read, not even by root, until what is returned goes out of scope.
[[nodiscard]] std::shared_ptr<void> Make_Unreadable(const QString& path);
