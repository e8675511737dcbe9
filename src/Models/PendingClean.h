#pragma once

#include "Models/ConfirmItem.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

// A clean the user asked for and has not confirmed yet: what the confirmation shows, and what
// runs when the user agrees.
struct PendingClean {
    struct Single {
        std::string id;
        bool operator==(const Single&) const = default;
    };
    struct All {
        bool operator==(const All&) const = default;
    };
    using Kind = std::variant<Single, All>;

    Kind kind;
    std::string title;
    std::optional<std::string> sizeText;  // none when the size isn't known
    std::vector<ConfirmItem> items;
    std::optional<std::string> whySafe;

    bool operator==(const PendingClean&) const = default;
};
