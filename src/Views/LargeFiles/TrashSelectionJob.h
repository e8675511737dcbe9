#pragma once

#include "Models/DuplicateGroup.h"
#include "Models/TrashedItem.h"
#include "Platform/ItemInfo.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

// Moves the files the user ticked in the large-file finder to the Trash, off the main thread: it
// owns copies of everything it needs. Plain C++, so it runs on any worker.
//
// A copy of a group only goes while another copy stays: right before each one moves, a member of
// its group that is not being trashed must still be there with the scanned size and the group's
// digest. A file that fails that check stays where it is, and the next scan shows the truth.
class TrashSelectionJob {
public:
    struct Outcome {
        std::int64_t freed = 0;
        std::vector<TrashedItem> trashed;
        // Copies left in place because no verified copy of them would have remained.
        std::vector<std::string> keptAsLastCopy;
    };

    // `order` is the ticked paths in the order they go; `groups` the groups of copies of the
    // scan they were ticked in.
    TrashSelectionJob(std::vector<std::string> order, std::vector<DuplicateGroup> groups);

    Outcome run();

    // The rule for every path the finder may trash: with links resolved, it passes the cleaner's
    // safety test or lies inside the home folder.
    static bool mayTrash(const std::string& path);

    // What the history calls a removal of `count` files.
    static std::string historyName(std::size_t count);

private:
    // A copy that stays, as it was when its contents were checked.
    struct KeptCopy {
        std::string path;
        ItemInfo info;
    };

    // A member of `group` that stays and still holds its contents, checked afresh unless the one
    // verified last is unchanged since.
    bool hasKeptCopy(std::size_t group);

    std::vector<std::string> order_;
    std::unordered_set<std::string> leaving_;
    std::vector<DuplicateGroup> groups_;
    std::vector<std::optional<KeptCopy>> verified_;
};
