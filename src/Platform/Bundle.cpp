#include "Platform/Bundle.h"

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
