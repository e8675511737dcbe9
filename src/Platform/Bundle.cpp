#include "Platform/Bundle.h"

#include "Platform/AtomicFile.h"
#include "Platform/FileSystem.h"
#include "Platform/PlistDocument.h"

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


std::optional<Info> open(const std::string& path)
{
    if (!FileSystem::isFolderFollowingLinks(path))
        return std::nullopt;
    Info info;
    const auto file = AtomicFile::read(path + "/Contents/Info.plist");
    if (!file.readable || file.contents.empty())
        return info;
    const auto plist = PlistDocument::parse(file.contents);
    info.identifier = plist.string("CFBundleIdentifier");
    info.name = plist.string("CFBundleName");
    return info;
}

}  // namespace Bundle
