#pragma once

#include <QString>

#include <string>
#include <vector>

// The catalog's words as people read them: the targets' names, the simple mode's group titles and
// the category headings. The catalog is plain C++ and names things in English; the views look a
// name up under its context when they show it, and this table is what the translation tools
// read, so a new catalog row needs its name here (a test says which are missing).
namespace CatalogWords {

inline constexpr const char* targetContext = "CleanupCatalog";
inline constexpr const char* groupContext = "SimpleGroup";
inline constexpr const char* categoryContext = "CleanupCategory";

struct Word {
    const char* context;
    const char* text;
};

const std::vector<Word>& all();

// A target's name in the running language; a name the table lacks (a custom folder's) as it is,
// byte for byte.
QString targetName(const std::string& name);

}  // namespace CatalogWords
