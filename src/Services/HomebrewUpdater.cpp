#include "Services/HomebrewUpdater.h"

#include "Services/NameOrder.h"
#include "Services/ShellQuote.h"
#include "Services/ShellRunner.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace HomebrewUpdater {
namespace {

std::string installedVersion(const nlohmann::json& element)
{
    const auto versions = element.find("installed_versions");
    if (versions != element.end()) {
        if (versions->is_array() && !versions->empty()
            && std::all_of(versions->begin(), versions->end(), [](const auto& v) { return v.is_string(); }))
            return versions->back().get<std::string>();
        // Older releases wrote a cask's version as plain text.
        if (versions->is_string())
            return versions->get<std::string>();
    }
    const auto single = element.find("installed_version");
    return single != element.end() && single->is_string() ? single->get<std::string>() : "?";
}

void appendPackages(const nlohmann::json& root, const char* key, OutdatedPackage::Kind kind,
                    std::vector<OutdatedPackage>& packages)
{
    const auto list = root.find(key);
    if (list == root.end() || !list->is_array())
        return;
    for (const auto& element : *list) {
        if (!element.is_object())
            continue;
        const auto name = element.find("name");
        if (name == element.end() || !name->is_string())
            continue;
        OutdatedPackage package;
        package.name = name->get<std::string>();
        package.kind = kind;
        package.installed = installedVersion(element);
        const auto current = element.find("current_version");
        package.current = current != element.end() && current->is_string() ? current->get<std::string>() : "?";
        packages.push_back(std::move(package));
    }
}

}  // namespace

bool isInstalled()
{
    return ShellRunner::runLogin("command -v brew", lookupTimeout).status == 0;
}

std::vector<OutdatedPackage> outdated()
{
    // Homebrew's warnings go to standard error, which would spoil the JSON on the shared pipe.
    const ShellResult result = ShellRunner::runLogin("brew outdated --greedy --json=v2 2>/dev/null", listTimeout);
    if (result.status != 0)
        return {};
    return parseOutdated(result.output);
}

std::vector<OutdatedPackage> parseOutdated(std::string_view json)
{
    const auto root = nlohmann::json::parse(json.begin(), json.end(), nullptr, /*allow_exceptions=*/false);
    std::vector<OutdatedPackage> packages;
    if (!root.is_object())
        return packages;
    appendPackages(root, "formulae", OutdatedPackage::Kind::formula, packages);
    appendPackages(root, "casks", OutdatedPackage::Kind::cask, packages);
    std::stable_sort(packages.begin(), packages.end(), [](const OutdatedPackage& a, const OutdatedPackage& b) {
        return NameOrder::caseInsensitiveLess(a.name, b.name);
    });
    return packages;
}

std::string upgradeCommand(const OutdatedPackage& package)
{
    return std::string(package.isCask() ? "brew upgrade --cask " : "brew upgrade ") + ShellQuote::word(package.name);
}

ShellResult upgrade(const OutdatedPackage& package)
{
    return ShellRunner::runLogin(upgradeCommand(package), upgradeTimeout);
}

ShellResult upgradeAll()
{
    return ShellRunner::runLogin("brew upgrade --greedy", upgradeAllTimeout);
}

}  // namespace HomebrewUpdater
