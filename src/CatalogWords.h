#pragma once

#include "Models/CleanupTarget.h"

#include <QString>

#include <string>

// The catalog's texts as people read them, in the running language. A built-in row's name,
// detail and safety sentence are marked for translation where the catalog writes them, under
// `context`; a custom folder's name and path are the folder's own and stay as they are, byte for
// byte, even when a folder happens to be called like a row.
namespace CatalogWords {

inline constexpr const char* context = "CleanupCatalog";

QString name(const CleanupTarget& target);
QString detail(const CleanupTarget& target);
QString whySafe(const CleanupTarget& target);

// A target's name as a clean record keeps it, in English: a row's name in the running language,
// any other name (a folder's, a project clean's) as it is.
QString recordedName(const std::string& name);

}  // namespace CatalogWords
