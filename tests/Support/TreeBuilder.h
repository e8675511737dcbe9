#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Builds test trees quickly, including shapes std::filesystem can't reach: paths longer than the
// system limit are made one level at a time through directory descriptors.
namespace TreeBuilder {

// A chain of `depth` nested folders named `name` below `root`, with one file of `fileBytes`
// bytes at the bottom. Returns nothing: the bottom can be longer than any path a call accepts.
void makeDeepChain(const std::string& root, int depth, const std::string& name, std::size_t fileBytes);

// How many folders lie below `root` following that chain, counted through descriptors.
int chainDepth(const std::string& root, const std::string& name);

void writeFile(const std::string& path, std::size_t bytes);

// The bytes an item takes on disk (its blocks), without following a link.
std::int64_t allocatedSize(const std::string& path);

// A file's bytes, whatever they are; empty when it can't be read.
std::string contentsOf(const std::string& path);

// The names in a folder, sorted; empty when it can't be listed.
std::vector<std::string> namesIn(const std::string& folder);

// Entries open in this process right now.
int openDescriptorCount();

}  // namespace TreeBuilder
