#include "Services/FlatpakUpdater.h"

#include "Services/HomebrewUpdater.h"
#include "Services/ShellQuote.h"
#include "Services/ShellRunner.h"

#include <algorithm>
#include <map>

namespace FlatpakUpdater {
namespace {

// The same limits as Homebrew's commands: a listing or an update takes as long either way.
using HomebrewUpdater::listTimeout;
using HomebrewUpdater::lookupTimeout;
using HomebrewUpdater::upgradeAllTimeout;
using HomebrewUpdater::upgradeTimeout;

std::vector<std::string> fields(std::string_view line)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (;;) {
        const auto tab = line.find('\t', start);
        parts.emplace_back(line.substr(start, tab == std::string_view::npos ? std::string_view::npos : tab - start));
        if (tab == std::string_view::npos)
            return parts;
        start = tab + 1;
    }
}

// Reverse-DNS names such as "org.mozilla.firefox": at least one dot, no spaces.
bool isApplicationId(std::string_view text)
{
    return text.find('.') != std::string_view::npos && text.find_first_of(" \t") == std::string_view::npos;
}

template <typename Visit>
void forEachRow(std::string_view text, Visit visit)
{
    std::size_t start = 0;
    while (start < text.size()) {
        const auto end = std::min(text.find('\n', start), text.size());
        std::string_view line = text.substr(start, end - start);
        start = end + 1;
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        auto row = fields(line);
        if (isApplicationId(row.front()))
            visit(row);
    }
}

std::string versionOr(const std::vector<std::string>& row, std::size_t column)
{
    return column < row.size() && !row[column].empty() ? row[column] : "?";
}

}  // namespace

bool isInstalled()
{
    return ShellRunner::runLogin("command -v flatpak", lookupTimeout).status == 0;
}

std::vector<OutdatedPackage> outdated()
{
    const ShellResult installed = ShellRunner::runLogin(
        "flatpak list --user --app --columns=application,version,name 2>/dev/null", listTimeout);
    if (installed.status != 0)
        return {};
    const ShellResult updates = ShellRunner::runLogin(
        "flatpak remote-ls --updates --user --app --columns=application,version 2>/dev/null", listTimeout);
    if (updates.status != 0)
        return {};
    return parseOutdated(installed.output, updates.output);
}

std::vector<OutdatedPackage> parseOutdated(std::string_view installed, std::string_view updates)
{
    std::map<std::string, std::vector<std::string>> installedById;
    forEachRow(installed, [&](const std::vector<std::string>& row) { installedById.try_emplace(row.front(), row); });

    std::vector<OutdatedPackage> packages;
    forEachRow(updates, [&](const std::vector<std::string>& row) {
        const bool seen = std::any_of(packages.begin(), packages.end(),
                                      [&](const OutdatedPackage& p) { return p.name == row.front(); });
        if (seen)
            return;
        OutdatedPackage package;
        package.kind = OutdatedPackage::Kind::flatpakApp;
        package.name = row.front();
        package.current = versionOr(row, 1);
        if (const auto found = installedById.find(row.front()); found != installedById.end()) {
            package.installed = versionOr(found->second, 1);
            if (found->second.size() > 2 && found->second[2] != package.name)
                package.title = found->second[2];
        }
        packages.push_back(std::move(package));
    });
    return packages;
}

std::string upgradeCommand(const OutdatedPackage& package)
{
    return "flatpak update --user -y --noninteractive " + ShellQuote::word(package.name);
}

ShellResult upgrade(const OutdatedPackage& package)
{
    return ShellRunner::runLogin(upgradeCommand(package), upgradeTimeout);
}

ShellResult upgradeAll()
{
    return ShellRunner::runLogin("flatpak update --user -y --noninteractive", upgradeAllTimeout);
}

}  // namespace FlatpakUpdater
