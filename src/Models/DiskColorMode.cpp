#include "Models/DiskColorMode.h"

namespace DiskColorModes {

std::string_view rawValue(DiskColorMode mode)
{
    return mode == DiskColorMode::age ? "age" : "type";
}

std::optional<DiskColorMode> fromRawValue(std::string_view raw)
{
    for (DiskColorMode mode : all) {
        if (rawValue(mode) == raw)
            return mode;
    }
    return std::nullopt;
}

DiskColorMode fromRawValueOrType(std::string_view raw)
{
    return fromRawValue(raw).value_or(DiskColorMode::type);
}

std::string_view label(DiskColorMode mode)
{
    return mode == DiskColorMode::age ? "Age" : "Type";
}

}  // namespace DiskColorModes
