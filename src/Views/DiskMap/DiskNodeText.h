#pragma once

#include "Models/DiskNode.h"

#include <QString>
#include <QVariantMap>

// How the disk map words a node, the same in the map, the list, the detail bar and the menus.
namespace DiskNodeText {

// The name, with "/" after a folder's: how tiles, tooltips and rows label it.
QString labelledName(const DiskNode& node);
// The category's label in the user's language.
QString categoryLabel(FileCategory category);
QString categoryLabel(const DiskNode& node);
// "folder" for a folder, else the category's label.
QString kind(const DiskNode& node);
// The path with the home folder shown as "~".
QString displayId(const DiskNode& node);

// Everything a view shows of a node: {id, displayId, name, labelledName, size, sizeText,
// isDirectory, isSynthetic, canZoom, categoryLabel, kind}.
QVariantMap describe(const DiskNode& node);

}  // namespace DiskNodeText
