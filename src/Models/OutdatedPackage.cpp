#include "Models/OutdatedPackage.h"

std::string OutdatedPackage::id() const
{
    switch (kind) {
    case Kind::formula:
        return "formula:" + name;
    case Kind::cask:
        return "cask:" + name;
    case Kind::flatpakApp:
        break;
    }
    return "flatpak:" + name;
}
