#include "Platform/Bundle.h"

#include "Platform/AtomicFile.h"
#include "Platform/FileSystem.h"

#include <plist/plist.h>

#include <cstdlib>
#include <mutex>

namespace Bundle {
namespace {

// Set once on the main thread at start, but read from wherever a service asks.
std::mutex identifierMutex;
std::optional<std::string> identifier;

}  // namespace

std::optional<std::string> mainIdentifier()
{
    const std::lock_guard lock(identifierMutex);
    return identifier;
}

void setMainIdentifier(std::optional<std::string> newIdentifier)
{
    const std::lock_guard lock(identifierMutex);
    identifier = std::move(newIdentifier);
}

}  // namespace Bundle

namespace Bundle {
namespace {

std::optional<std::string> stringValue(plist_t dictionary, const char* key)
{
    plist_t node = plist_dict_get_item(dictionary, key);
    if (!node || plist_get_node_type(node) != PLIST_STRING)
        return std::nullopt;
    char* text = nullptr;
    plist_get_string_val(node, &text);
    if (!text)
        return std::nullopt;
    std::string value(text);
    std::free(text);
    return value;
}

}  // namespace

std::optional<Info> open(const std::string& path)
{
    if (!FileSystem::isFolderFollowingLinks(path))
        return std::nullopt;
    Info info;
    const auto file = AtomicFile::read(path + "/Contents/Info.plist");
    if (!file.readable || file.contents.empty())
        return info;
    plist_t root = nullptr;
    plist_from_memory(file.contents.data(), static_cast<uint32_t>(file.contents.size()), &root);
    if (root && plist_get_node_type(root) == PLIST_DICT) {
        info.identifier = stringValue(root, "CFBundleIdentifier");
        info.name = stringValue(root, "CFBundleName");
    }
    plist_free(root);
    return info;
}

}  // namespace Bundle
