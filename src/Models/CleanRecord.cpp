#include "Models/CleanRecord.h"

#include "Platform/Utf8.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <limits>

using nlohmann::json;

namespace {

constexpr Clock::TimePoint referenceDate{std::chrono::seconds(CleanRecord::referenceDateUnixSeconds)};

double secondsSinceReference(Clock::TimePoint date)
{
    return std::chrono::duration<double>(date - referenceDate).count();
}

std::optional<Clock::TimePoint> dateFromSeconds(double seconds)
{
    // Keeps the result inside the clock's range of about 292 years either side of 1970.
    if (!std::isfinite(seconds) || std::abs(seconds) > 8.0e9)
        return std::nullopt;
    const auto offset = std::chrono::round<std::chrono::microseconds>(std::chrono::duration<double>(seconds));
    return referenceDate + offset;
}

// An integer of the JSON text, or a real with no fractional part (some writers put large whole
// numbers as "5e9"); none when it doesn't fit 64 bits.
std::optional<std::int64_t> integerOf(const json& value)
{
    if (value.is_number_integer() && !value.is_number_unsigned())
        return value.get<std::int64_t>();
    if (value.is_number_unsigned()) {
        const auto unsignedValue = value.get<std::uint64_t>();
        if (unsignedValue > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
            return std::nullopt;
        return static_cast<std::int64_t>(unsignedValue);
    }
    if (value.is_number_float()) {
        constexpr double twoToThe63 = 9223372036854775808.0;
        const double real = value.get<double>();
        // 2^63 itself is out of range; every whole double below it converts exactly.
        if (std::trunc(real) != real || real < -twoToThe63 || real >= twoToThe63)
            return std::nullopt;
        return static_cast<std::int64_t>(real);
    }
    return std::nullopt;
}

// A key that is missing or null is absent; the caller decides whether that is allowed.
const json* member(const json& object, const char* key)
{
    const auto found = object.find(key);
    if (found == object.end() || found->is_null())
        return nullptr;
    return &*found;
}

std::optional<std::vector<TrashedItem>> itemsFromJson(const json& array)
{
    if (!array.is_array())
        return std::nullopt;
    std::vector<TrashedItem> items;
    items.reserve(array.size());
    for (const auto& entry : array) {
        if (!entry.is_object())
            return std::nullopt;
        const json* original = member(entry, "original");
        const json* trashPath = member(entry, "trashPath");
        if (!original || !trashPath || !original->is_string() || !trashPath->is_string())
            return std::nullopt;
        items.push_back({Utf8::unescaped(original->get<std::string>()), Utf8::unescaped(trashPath->get<std::string>())});
    }
    return items;
}

// Reads the optional keys into `record`; false when one is present with the wrong type.
bool readOptionals(const json& object, CleanRecord& record)
{
    if (const json* items = member(object, "items")) {
        record.items = itemsFromJson(*items);
        if (!record.items)
            return false;
    }
    if (const json* restored = member(object, "restored")) {
        if (!restored->is_boolean())
            return false;
        record.restored = restored->get<bool>();
    }
    return true;
}

}  // namespace

CleanRecord CleanRecord::make(std::string targetName, std::int64_t freed, bool trashed,
                              std::vector<TrashedItem> items)
{
    CleanRecord record;
    record.id = Uuid::random();
    record.targetName = std::move(targetName);
    record.freed = freed;
    // Whole microseconds survive the stored form exactly, so the record reads back equal.
    record.date = std::chrono::floor<std::chrono::microseconds>(Clock::now());
    record.trashed = trashed;
    if (!items.empty())
        record.items = std::move(items);
    return record;
}

json CleanRecord::toJson() const
{
    json object = {
        {"id", id.string()},
        {"targetName", Utf8::escaped(targetName)},
        {"freed", freed},
        {"date", secondsSinceReference(date)},
        {"trashed", trashed},
    };
    if (items) {
        json array = json::array();
        for (const auto& item : *items)
            array.push_back({{"original", Utf8::escaped(item.original)}, {"trashPath", Utf8::escaped(item.trashPath)}});
        object["items"] = std::move(array);
    }
    if (restored)
        object["restored"] = *restored;
    return object;
}

std::optional<CleanRecord> CleanRecord::fromJson(const json& object)
{
    if (!object.is_object())
        return std::nullopt;
    const json* id = member(object, "id");
    const json* targetName = member(object, "targetName");
    const json* freed = member(object, "freed");
    const json* date = member(object, "date");
    const json* trashed = member(object, "trashed");
    if (!id || !targetName || !freed || !date || !trashed)
        return std::nullopt;
    if (!id->is_string() || !targetName->is_string() || !date->is_number() || !trashed->is_boolean())
        return std::nullopt;

    const auto uuid = Uuid::parse(id->get<std::string>());
    const auto bytes = integerOf(*freed);
    const auto when = dateFromSeconds(date->get<double>());
    if (!uuid || !bytes || !when)
        return std::nullopt;

    CleanRecord record;
    record.id = *uuid;
    record.targetName = Utf8::unescaped(targetName->get<std::string>());
    record.freed = *bytes;
    record.date = *when;
    record.trashed = trashed->get<bool>();
    if (!readOptionals(object, record))
        return std::nullopt;
    return record;
}
