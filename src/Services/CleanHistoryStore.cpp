#include "Services/CleanHistoryStore.h"

#include "Platform/DefaultsStore.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <variant>

using nlohmann::json;

namespace CleanHistoryStore {

namespace {

// An integer as stored, a real cut to its integer part; anything else, or a real outside the
// 64-bit range, counts as nothing freed yet.
std::int64_t totalOf(const std::optional<DefaultsStore::Value>& value)
{
    if (!value)
        return 0;
    if (const auto* integer = std::get_if<std::int64_t>(&*value))
        return *integer;
    if (const auto* real = std::get_if<double>(&*value)) {
        constexpr double twoToThe63 = 9223372036854775808.0;
        if (std::isfinite(*real) && *real > -twoToThe63 && *real < twoToThe63)
            return static_cast<std::int64_t>(*real);
    }
    return 0;
}

}  // namespace

std::optional<std::string> encode(const std::vector<CleanRecord>& records)
{
    json array = json::array();
    for (const auto& record : records)
        array.push_back(record.toJson());
    try {
        return array.dump();
    } catch (const json::exception&) {
        return std::nullopt;  // records escape their names; this is only the library's last word
    }
}

std::optional<std::vector<CleanRecord>> decode(std::string_view text)
{
    const json array = json::parse(text, nullptr, false);
    if (!array.is_array())
        return std::nullopt;  // also what a parse failure gives
    std::vector<CleanRecord> records;
    records.reserve(array.size());
    for (const auto& element : array) {
        auto record = CleanRecord::fromJson(element);
        if (!record)
            return std::nullopt;
        records.push_back(std::move(*record));
    }
    return records;
}

Loaded load(const DefaultsStore& defaults)
{
    Loaded loaded;
    if (const auto data = defaults.data(historyKey)) {
        const std::string_view text(reinterpret_cast<const char*>(data->data()), data->size());
        if (auto records = decode(text))
            loaded.history = std::move(*records);
    }
    // Read as stored rather than through number(): a double would round totals above 2^53.
    loaded.total = totalOf(defaults.object(totalKey));
    return loaded;
}

void save(DefaultsStore& defaults, const std::vector<CleanRecord>& history, std::int64_t total)
{
    const auto kept = std::min(history.size(), maximumStored);
    const std::vector<CleanRecord> stored(history.begin(), history.begin() + static_cast<std::ptrdiff_t>(kept));
    if (const auto text = encode(stored))
        defaults.set(historyKey, DefaultsStore::Data(text->begin(), text->end()));
    defaults.set(totalKey, total);
}

}  // namespace CleanHistoryStore
