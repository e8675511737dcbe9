#include "Models/CleanupSchedule.h"

#include "Models/RawValueLookup.h"

namespace CleanupSchedules {

std::string_view rawValue(CleanupSchedule schedule)
{
    switch (schedule) {
    case CleanupSchedule::off: return "off";
    case CleanupSchedule::daily: return "daily";
    case CleanupSchedule::weekly: return "weekly";
    }
    return "off";
}

CleanupSchedule fromRawValue(std::string_view raw)
{
    return caseForRawValue(all, rawValue, raw).value_or(CleanupSchedule::off);
}

}  // namespace CleanupSchedules
