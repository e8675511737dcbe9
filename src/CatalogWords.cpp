#include "CatalogWords.h"

#include "QtConversions.h"

namespace CatalogWords {

using QtConversions::toQt;
using QtConversions::translated;

QString name(const CleanupTarget& target)
{
    return target.isBuiltIn ? translated(context, target.name) : toQt(target.name);
}

QString detail(const CleanupTarget& target)
{
    return target.isBuiltIn ? translated(context, target.detail) : toQt(target.detail);
}

QString whySafe(const CleanupTarget& target)
{
    return translated(context, target.whySafe());
}

QString recordedName(const std::string& name)
{
    return translated(context, name);
}

}  // namespace CatalogWords
