#pragma once

#include <optional>
#include <string>

// Finds a program the way a shell would, for the few tools the application runs directly.
namespace ExecutablePath {

// The first executable regular file called `name` in the folders of $PATH, in order; none when
// there is none or `name` holds a "/". Empty and relative folders in $PATH are skipped, so the
// working folder is never searched by accident.
std::optional<std::string> find(const std::string& name);

}  // namespace ExecutablePath
