#pragma once

#include "Models/DiskNode.h"

#include <QString>
#include <QVariantMap>

// How the disk map words a node, the same in the map, the list, the detail bar and the menus.
namespace DiskNodeText {

// The name: a file's or folder's own, byte for byte; the node of a folder's small entries in the
// user's language.
QString name(const DiskNode& node);
// The name, with "/" after a folder's: how tiles, tooltips and rows label it.
QString labelledName(const DiskNode& node);
// The category's label in the user's language.
QString categoryLabel(FileCategory category);
QString categoryLabel(const DiskNode& node);
// "folder" for a folder, else the category's label.
QString kind(const DiskNode& node);
// The path with the home folder shown as "~".
QString displayId(const DiskNode& node);
// A dot-name the file manager hides; where the map shows such entries it says so.
bool isHidden(const DiskNode& node);
// The tooltip's second line: the size and the category, then "hidden" for a hidden entry.
QString summary(const DiskNode& node);

// Everything a view shows of a node: {id, displayId, name, labelledName, size, sizeText,
// isDirectory, isSynthetic, isHidden, canZoom, categoryLabel, kind, summary}.
QVariantMap describe(const DiskNode& node);

}  // namespace DiskNodeText
