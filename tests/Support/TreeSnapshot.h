#pragma once

#include <map>
#include <string>
#include <vector>

// Every path below a root with its type, size and link target, for checking that a removal
// changed nothing outside the places it was given.
using TreeSnapshot = std::map<std::string, std::string>;

// Links are recorded, not followed. Paths starting with one of `skip` are left out.
TreeSnapshot snapshotTree(const std::string& root, const std::vector<std::string>& skip = {});
