#pragma once

#include "AppModel.h"
#include "Platform/DefaultsStore.h"
#include "Services/AppSettings.h"
#include "Support/TempHome.h"

#include <memory>
#include <string>

// A model over a real defaults file in a temporary home, with helpers to find its targets and
// to wait for flows that run on by themselves.
class ModelFixture : public TempHomeTest {
protected:
    std::string defaultsPath() const { return tempHome.configHome() + "/mopwell/defaults.plist"; }

    std::shared_ptr<DefaultsStore> store = std::make_shared<DefaultsStore>(defaultsPath());
    std::unique_ptr<AppModel> model = std::make_unique<AppModel>(store);
    AppSettings& settings = *model->settings();

    const TargetState* state(const std::string& id) const;
    // Spins the event loop until `done` holds or the time runs out; true when it held.
    static bool waitUntil(const std::function<bool()>& done, int milliseconds = 10'000);
};
