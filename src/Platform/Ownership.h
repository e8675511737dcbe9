#pragma once

#include <string>

// Who an item belongs to, for the tools that only touch what is the user's own.
namespace Ownership {

// The item itself (a link as the link) belongs to the user the process runs as.
bool isOwnedByCurrentUser(const std::string& path);

}  // namespace Ownership
