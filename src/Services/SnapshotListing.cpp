#include "Services/SnapshotListing.h"

#include "Platform/TextTrim.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <limits>

namespace SnapshotListing {
namespace {

constexpr std::string_view timeMachinePrefix = "com.apple.TimeMachine.";
constexpr std::string_view localSuffix = ".local";

nlohmann::json parsed(std::string_view text)
{
    return nlohmann::json::parse(text.begin(), text.end(), nullptr, /*allow_exceptions=*/false);
}

bool isTrue(const nlohmann::json& object, const char* key)
{
    const auto found = object.find(key);
    return found != object.end() && found->is_boolean() && found->get<bool>();
}

std::string textOf(const nlohmann::json& object, const char* key)
{
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

std::optional<std::int64_t> bytesOf(const nlohmann::json& object, const char* key)
{
    const auto found = object.find(key);
    if (found == object.end() || !found->is_number_integer())
        return std::nullopt;
    if (found->is_number_unsigned()) {
        const auto value = found->get<std::uint64_t>();
        return static_cast<std::int64_t>(std::min<std::uint64_t>(value, std::numeric_limits<std::int64_t>::max()));
    }
    const auto value = found->get<std::int64_t>();
    return value >= 0 ? std::optional<std::int64_t>(value) : std::nullopt;
}

std::optional<LocalSnapshot> snapperSnapshot(const nlohmann::json& entry, const std::string& config)
{
    if (!entry.is_object())
        return std::nullopt;
    const auto number = entry.find("number");
    if (number == entry.end() || !number->is_number_integer() || number->get<std::int64_t>() <= 0)
        return std::nullopt;
    if (isTrue(entry, "active") || isTrue(entry, "default"))
        return std::nullopt;
    LocalSnapshot snapshot = LocalSnapshot::snapper(config, number->get<std::int64_t>(),
                                                     stampFromSnapperDate(textOf(entry, "date")),
                                                     textOf(entry, "description"));
    snapshot.exclusiveBytes = bytesOf(entry, "used-space");
    return snapshot;
}

}  // namespace

std::vector<LocalSnapshot> parseTimeMachine(std::string_view output)
{
    std::vector<LocalSnapshot> snapshots;
    std::size_t start = 0;
    while (start <= output.size()) {
        const auto end = std::min(output.find('\n', start), output.size());
        const std::string_view line = TextTrim::trimmed(output.substr(start, end - start), " \t");
        start = end + 1;
        const auto prefix = line.find(timeMachinePrefix);
        if (prefix == std::string_view::npos)
            continue;
        std::string_view stamp = line.substr(prefix + timeMachinePrefix.size());
        if (stamp.size() >= localSuffix.size() && stamp.substr(stamp.size() - localSuffix.size()) == localSuffix)
            stamp.remove_suffix(localSuffix.size());
        if (stamp.empty())
            continue;
        snapshots.push_back(LocalSnapshot::timeMachine(std::string(line), std::string(stamp)));
    }
    return snapshots;
}

std::vector<std::string> parseSnapperConfigs(std::string_view json)
{
    const nlohmann::json root = parsed(json);
    std::vector<std::string> names;
    if (!root.is_object() || !root.contains("configs") || !root["configs"].is_array())
        return names;
    for (const auto& entry : root["configs"]) {
        if (!entry.is_object())
            continue;
        std::string name = textOf(entry, "config");
        if (!name.empty())
            names.push_back(std::move(name));
    }
    return names;
}

std::vector<LocalSnapshot> parseSnapperList(std::string_view json, const std::string& config)
{
    const nlohmann::json root = parsed(json);
    std::vector<LocalSnapshot> snapshots;
    if (!root.is_object() || !root.contains(config) || !root[config].is_array())
        return snapshots;
    for (const auto& entry : root[config]) {
        if (auto snapshot = snapperSnapshot(entry, config))
            snapshots.push_back(std::move(*snapshot));
    }
    return snapshots;
}

std::string stampFromSnapperDate(std::string_view date)
{
    // "yyyy-MM-dd HH:mm:ss": digits everywhere but at the separators.
    constexpr std::string_view shape = "dddd-dd-dd dd:dd:dd";
    if (date.size() != shape.size())
        return std::string(date);
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const bool digit = std::isdigit(static_cast<unsigned char>(date[i])) != 0;
        if (shape[i] == 'd' ? !digit : date[i] != shape[i])
            return std::string(date);
    }
    std::string stamp(date.substr(0, 10));
    stamp += '-';
    stamp += date.substr(11, 2);
    stamp += date.substr(14, 2);
    stamp += date.substr(17, 2);
    return stamp;
}

void sortNewestFirst(std::vector<LocalSnapshot>& snapshots)
{
    std::stable_sort(snapshots.begin(), snapshots.end(),
                     [](const LocalSnapshot& a, const LocalSnapshot& b) { return a.timestamp > b.timestamp; });
}

}  // namespace SnapshotListing
