#pragma once

#include "Models/UninstallItem.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

// Gathers an app's items from a fixed list of candidate paths, in the order they are offered.
// Each path is considered once whatever label offers it again, so a folder that two rules point
// at (a name equal to the identifier) is listed once, under the first rule's label, and nothing
// is measured twice.
class LeftoverSearch {
public:
    // Expands "~"; skips a path already taken or with nothing there; else takes it, measures it
    // and adds an item with a fresh id.
    void consider(const std::string& path, const std::string& label, bool isBundle = false);
    // Every entry of `folder` whose name holds `needle` as a case-sensitive substring, in the
    // order the folder lists them. A folder that can't be listed adds nothing.
    void considerEntriesContaining(const std::string& folder, std::string_view needle, const std::string& label);

    const std::vector<UninstallItem>& items() const { return items_; }

    // What removing the item gives back: a link counts as itself, never as what it points to.
    static std::int64_t measure(const std::string& path);
    // `text` can stand for one path component: not empty, no "/", no NUL, not "." or "..". A
    // name or identifier that fails this is never joined to a folder, so it can't climb out.
    static bool isSingleComponent(std::string_view text);

private:
    std::set<std::string> taken_;
    std::vector<UninstallItem> items_;
};
