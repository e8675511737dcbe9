#pragma once

#include "Platform/ItemInfo.h"

#include <cstdint>
#include <string>
#include <string_view>

// Walks a folder tree depth first through directory descriptors: one listing per folder, one
// metadata call per entry, links never followed, entries in the order the folder lists them.
// Only a bounded number of descriptors stay open however deep the tree is: past a depth set by
// the process's descriptor limit the walker climbs back with "..", checking that it arrives where
// it came from, so trees thousands of levels deep and paths longer than the system limit are
// walked without recursion.
class DirectoryWalker {
public:
    enum class Action { descend, skip, stop };

    // Whether helper threads read listings and metadata ahead of the walk (Platform/ReadAhead),
    // which changes nothing the visitor sees: `whenCold` starts them once the walk has had to
    // read from the disk, as a warm cache gains nothing from them; `always` is for tests.
    enum class ReadAheadMode { off, whenCold, always };

    struct Entry {
        int parentDescriptor;  // the open folder holding the entry; valid during the call only
        std::string_view name;
        const ItemInfo& info;
        int depth;  // 1 for the root's own children
    };

    class Visitor {
    public:
        virtual ~Visitor() = default;
        // Every entry below the root, before a folder's contents. Only `descend` enters a folder.
        virtual Action visit(const Entry& entry) = 0;
        // A folder entered with `descend`, after all its contents. Of its metadata, `info` holds
        // the type, device and inode only.
        virtual void leave(const Entry& folder) { (void)folder; }
        // A folder that could not be opened or listed; its contents are left out. For a visitor
        // that takes no partial listings, a root whose listing broke off is reported here too,
        // at depth 0 with no parent (-1) and no name, and is not walked.
        virtual void unreadable(const Entry& folder) { (void)folder; }
        // An entry whose metadata could not be read: it went away since the listing, or its
        // folder may be listed but not searched. Left out unless the visitor takes it.
        virtual void unmeasurable(int parentDescriptor, std::string_view name, int depth)
        {
            (void)parentDescriptor, (void)name, (void)depth;
        }
        // Once, on the walking thread, before the walk may take a descriptor table of its own: from
        // here on the visitor must reach nothing else the process has open (another thread's
        // event-loop wake-up, a file, a socket), as its descriptors may not be there.
        virtual void goingAlone() {}
        // Whether a folder whose listing broke off part-way is walked with the entries read
        // before the error, as a directory stream would (the default), or counts as unreadable.
        virtual bool walksPartialListings() const { return true; }
    };

    // Walks below `root`, which is followed if it is a link. False when the root can't be opened
    // as a folder, or the walk stopped early (a visitor's `stop`, or the tree moved under it).
    static bool walk(const std::string& root, Visitor& visitor);

    // The same below an already open folder, which the walker does not close. Given `aloneAfter`,
    // once that many entries are walked the visitor hears goingAlone() and the walk gives its
    // thread a descriptor table of its own, holding the walk's descriptors and the standard three.
    // While other threads share a table, every call naming a descriptor takes and drops a
    // reference on its file, which costs a walk a few percent. What the thread opens afterwards
    // the rest of the process can't see, and what they open it can't: ask for it only on a
    // thread made for the walk, which ends with it. Skipped where the system can't do it, and
    // where helpers reading ahead already share the table.
    static bool walkDescriptor(int folderDescriptor, Visitor& visitor, ReadAheadMode readAhead = ReadAheadMode::off,
                               std::uint32_t aloneAfter = 0);

    // Grows the process's table of descriptors at once to what the deepest walk keeps open, given
    // any open descriptor. The table only ever grows, by doubling, and in a process of several
    // threads each growth waits for every processor to pass a quiet point; a walk thousands of
    // levels deep would wait like that six times. Costs nothing to speak of before the process
    // starts its threads, and once at most after.
    static void reserveDescriptors(int anyDescriptor);
};
