#include "TargetsCommand.h"

#include "Models/CleanupCatalog.h"
#include "Platform/ByteCountFormatter.h"
#include "Platform/DefaultsStore.h"
#include "Platform/Paths.h"
#include "Platform/Utf8.h"
#include "Services/Scanner.h"
#include "Services/StoredTargetSettings.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>

namespace fs = std::filesystem;

namespace {

struct Options {
    bool developer = false;
    bool json = false;
    PlatformProfile profile = currentPlatformProfile();
};

std::optional<Options> parse(const std::vector<std::string>& arguments)
{
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--developer") {
            options.developer = true;
        } else if (arguments[i] == "--json") {
            options.json = true;
        } else if (arguments[i] == "--profile" && i + 1 < arguments.size()) {
            const auto profile = platformProfileNamed(arguments[++i]);
            if (!profile)
                return std::nullopt;
            options.profile = *profile;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

// The settings as the application would read them. The store is opened on a copy: opening sets a
// damaged file aside, and a preview must leave the user's file exactly as it found it.
TargetListSettings storedSettings()
{
    std::error_code error;
    std::string scratch = (fs::temp_directory_path(error) / "mopwell-targets.XXXXXX").string();
    const bool madeScratch = !error && mkdtemp(scratch.data()) != nullptr;
    const fs::path copy = fs::path(scratch) / "defaults.plist";
    if (madeScratch)
        fs::copy_file(DefaultsStore::standardPath(), copy, error);
    // Without a copy the store finds no file and reads as a first start would.
    TargetListSettings settings = StoredTargetSettings::read(DefaultsStore(copy.string()));
    if (madeScratch)
        fs::remove_all(scratch, error);
    return settings;
}

struct Row {
    CleanupTarget target;
    std::optional<std::int64_t> size;
    bool enabled = true;
};

std::vector<std::string> escapedAll(const std::vector<std::string>& texts)
{
    std::vector<std::string> escaped;
    for (const auto& text : texts)
        escaped.push_back(Utf8::escaped(text));
    return escaped;
}

const std::vector<std::string>& excludedOf(const CleanupTarget& target)
{
    static const std::vector<std::string> none;
    const auto* paths = std::get_if<PathsKind>(&target.kind);
    return paths ? paths->excluded : none;
}

void printJson(const Options& options, const std::vector<Row>& rows, std::int64_t total)
{
    nlohmann::ordered_json targets = nlohmann::ordered_json::array();
    for (const Row& row : rows) {
        std::vector<std::string> excluded;
        for (const auto& path : excludedOf(row.target))
            excluded.push_back(Paths::expandingTilde(path));
        targets.push_back({{"id", Utf8::escaped(row.target.id)},
                           {"name", Utf8::escaped(row.target.name)},
                           {"category", CleanupCategories::rawValue(row.target.category)},
                           {"enabled", row.enabled},
                           {"displayPaths", escapedAll(row.target.displayPaths())},
                           {"excludedPaths", escapedAll(excluded)},
                           {"size", row.size ? nlohmann::ordered_json(*row.size) : nlohmann::ordered_json(nullptr)}});
    }
    const nlohmann::ordered_json document = {{"profile", platformProfileName(options.profile)},
                                             {"developerMode", options.developer},
                                             {"targets", std::move(targets)},
                                             {"totalReclaimable", total}};
    std::printf("%s\n", document.dump(1).c_str());
}

void printText(const Options& options, const std::vector<Row>& rows, std::int64_t total)
{
    std::printf("%s profile, %s mode\n\n", std::string(platformProfileName(options.profile)).c_str(),
                options.developer ? "developer" : "simple");
    for (const Row& row : rows) {
        const std::string size = row.size ? ByteCountFormatter::string(*row.size) : "—";
        std::printf("%-16s %-34s %-18s %12s%s\n", Utf8::escaped(row.target.id).c_str(),
                    Utf8::escaped(row.target.name).c_str(),
                    std::string(CleanupCategories::rawValue(row.target.category)).c_str(), size.c_str(),
                    row.enabled ? "" : "  (excluded from the clean)");
        for (const auto& path : row.target.displayPaths())
            std::printf("    %s\n", Utf8::escaped(Paths::abbreviatingWithTilde(path)).c_str());
        for (const auto& path : excludedOf(row.target))
            std::printf("    except %s\n", Utf8::escaped(Paths::abbreviatingWithTilde(Paths::expandingTilde(path))).c_str());
    }
    std::printf("\nreclaimable: %s (%lld bytes)\n", ByteCountFormatter::string(total).c_str(),
                static_cast<long long>(total));
}

}  // namespace

int runTargetsCommand(const std::vector<std::string>& arguments)
{
    const auto options = parse(arguments);
    if (!options)
        return 2;
    TargetListSettings settings = storedSettings();
    settings.developerMode = settings.developerMode || options->developer;
    Options shown = *options;
    shown.developer = settings.developerMode;

    std::vector<Row> rows;
    std::int64_t total = 0;
    for (auto& target : CleanupCatalog::liveTargets(settings, options->profile)) {
        Row row{std::move(target), std::nullopt, true};
        row.size = Scanner::size(row.target);
        row.enabled = std::find(settings.disabledTargetIDs.begin(), settings.disabledTargetIDs.end(), row.target.id) ==
                      settings.disabledTargetIDs.end();
        // The panel's total: known sizes of the targets the clean of everything takes.
        if (row.enabled)
            total += row.size.value_or(0);
        rows.push_back(std::move(row));
    }
    if (options->json)
        printJson(shown, rows, total);
    else
        printText(shown, rows, total);
    return 0;
}
