#pragma once

#include "Models/TargetListSettings.h"

class DefaultsStore;

// Reads the settings that shape the target list from the defaults store, with the values a first
// start has for missing keys. The application's settings read these keys through here too, so
// the command-line preview and the panel always agree.
namespace StoredTargetSettings {

TargetListSettings read(const DefaultsStore& store);

}  // namespace StoredTargetSettings
