#include "support/registry.h"

/// There is no registry on this platform.
std::optional<std::vector<Registry_Value>> List_Registry_Values(std::uint32_t, const QString&)
{
    return std::nullopt;
}
