#pragma once

#include "Models/FileCategory.h"

#include <QColor>

// The engine's toolkit-free colours, as the views draw them.
inline QColor toQColor(const FileCategoryColor& color)
{
    return QColor::fromRgbF(float(color.red), float(color.green), float(color.blue));
}
