#include "Platform/DirectoryWalker.h"

#include "Platform/KernelListing.h"
#include "Platform/PageAllocator.h"
#include "Platform/PosixItemInfo.h"
#include "Platform/ReadAhead.h"

#include <algorithm>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace {

// Folders shallower than a limit keep their descriptor open while their contents are walked;
// deeper ones are closed on the way down and reopened through "..", which costs two calls a
// level. The limit is a quarter of the descriptors the process may open, so a walk leaves room
// for everything else, and lies between these.
constexpr int leastOpenDepth = 64;
constexpr int mostOpenDepth = 4096;

int openDepthLimit()
{
    struct rlimit limit {};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return leastOpenDepth;
    return static_cast<int>(std::clamp<rlim_t>(limit.rlim_cur / 4, leastOpenDepth, mostOpenDepth));
}

// A folder's listing lives in the walk's shared name buffer, from `listingStart` up to where the
// next folder's begins: each name followed by a zero byte. The folders open at any time are the
// path from the root down, so their listings stack up in that buffer and a finished folder's
// is dropped by shortening it. A frame is kept small, as a tree thousands of levels deep has one
// per level: offsets into the buffer, and of the folder's own metadata what leave() and the
// climb back need.
struct Frame {
    int descriptor;  // -1 while closed
    int depth;       // depth of this folder; its children are depth + 1
    std::uint64_t device;
    std::uint64_t inode;
    std::uint32_t nameStart;  // this folder's name in its parent's listing
    std::uint32_t nameLength;
    std::uint32_t listingStart;
    std::uint32_t next;  // where the next name to visit begins

    ItemInfo info() const
    {
        ItemInfo info;
        info.type = ItemInfo::Type::folder;
        info.device = device;
        info.inode = inode;
        return info;
    }
};

// The stacks a walk grows by a level or a listing at a time; a deep tree makes them large.
using Names = std::basic_string<char, std::char_traits<char>, PageAllocator<char>>;
using Frames = std::vector<Frame, PageAllocator<Frame>>;

// Appends the names of the folder open at `descriptor`, without "." and "..", each followed by
// a zero byte, and sets `self` to the inode number "." is listed with (0 if it isn't). A read
// that fails ends the listing with what was read, and false.
bool appendListing(int descriptor, Names& names, std::vector<std::uint64_t>& buffer, std::uint64_t& self)
{
    return forEachListed(descriptor, buffer, self, [&names](const char* name) { names.append(name, std::strlen(name) + 1); });
}

bool sameItem(int descriptor, std::uint64_t device, std::uint64_t inode)
{
    struct stat status {};
    return fstat(descriptor, &status) == 0 && static_cast<std::uint64_t>(status.st_dev) == device &&
           static_cast<std::uint64_t>(status.st_ino) == inode;
}

// Blocks this thread has read from the disk so far, metadata included.
long blocksRead()
{
    struct rusage usage {};
    return getrusage(RUSAGE_THREAD, &usage) == 0 ? usage.ru_inblock : 0;
}

// Gives the calling thread a descriptor table of its own holding the standard three and `kept`
// (not empty), grown at once to what the walk may keep open. Changes nothing where the system
// can't.
void useOwnDescriptorTable(std::vector<int> kept)
{
    std::sort(kept.begin(), kept.end());
    // Unsharing and closing what lies above in one call: a kernel without it does neither. The
    // copies closed are this thread's alone; the files stay open for the rest of the process.
    const unsigned above = static_cast<unsigned>(std::max(kept.back(), STDERR_FILENO)) + 1;
    if (close_range(above, ~0U, CLOSE_RANGE_UNSHARE) != 0)
        return;
    int next = STDERR_FILENO + 1;
    for (const int descriptor : kept) {
        if (descriptor > next)
            close_range(static_cast<unsigned>(next), static_cast<unsigned>(descriptor) - 1, 0);
        next = std::max(next, descriptor + 1);
    }
    // Its own table grows without waiting on other threads, but helpers reading ahead would
    // share it.
    DirectoryWalker::reserveDescriptors(kept.front());
}

class Walk {
public:
    Walk(DirectoryWalker::Visitor& visitor, DirectoryWalker::ReadAheadMode readAhead, std::uint32_t aloneAfter)
        : visitor_(visitor), buffer_(listingBufferWords), openDepthLimit_(openDepthLimit()), readAheadMode_(readAhead),
          aloneAfter_(aloneAfter)
    {
    }

    ~Walk()
    {
        for (const Frame& frame : stack_) {
            if (frame.descriptor >= 0 && frame.descriptor != borrowed_)
                close(frame.descriptor);
        }
    }

    bool run(int rootDescriptor)
    {
        borrowed_ = rootDescriptor;
        struct stat status {};
        if (fstat(rootDescriptor, &status) != 0 || !S_ISDIR(status.st_mode))
            return false;
        const ItemInfo info = itemInfoFrom(status);
        blocksAtLastLook_ = readAheadMode_ == DirectoryWalker::ReadAheadMode::whenCold ? blocksRead() : 0;
        std::uint64_t self = 0;
        const bool whole = appendListing(rootDescriptor, names_, buffer_, self);
        considerReadingAhead();
        if (!whole && !visitor_.walksPartialListings()) {
            names_.clear();
            visitor_.unreadable({-1, {}, info, 0});
            return false;
        }
        stack_.push_back({rootDescriptor, 0, info.device, info.inode, 0, 0, 0, 0});
        while (!stack_.empty()) {
            // The top folder's listing is the last in the buffer: it runs to the end.
            Frame& top = stack_.back();
            if (top.next == names_.size()) {
                if (!climb())
                    return false;
                continue;
            }
            const std::size_t start = top.next;
            const std::size_t length = std::strlen(names_.data() + start);
            top.next = static_cast<std::uint32_t>(start + length + 1);
            if (!step(stack_.size() - 1, start, length))
                return false;
        }
        return true;
    }

private:
    // 32 KB, as a directory stream reads at a time.
    static constexpr std::size_t listingBufferWords = 32768 / sizeof(std::uint64_t);

    std::string_view nameAt(std::size_t start, std::size_t length) const { return {names_.data() + start, length}; }

    // Entries between two looks at whether the walk reads from the disk.
    static constexpr std::uint32_t entriesBetweenLooks = 512;
    // Blocks read (of 512 bytes) between two looks that mean the tree is not in the cache: an
    // uncached tree reads thousands, a cached one now and then a few that the system had let go.
    static constexpr long coldBlocks = 256;
    // Looks in a row that must find the disk read before the helpers start: an uncached tree reads
    // at every look, while a cached one the system has let go of in part can read a burst at one,
    // and four helpers started for nothing slow a cached walk by a fifth on two cores.
    static constexpr int coldLooksToStart = 2;

    // Starts the helpers for `always`, or for `whenCold` once the walk reads from the disk.
    void considerReadingAhead()
    {
        if (readAhead_ || readAheadMode_ == DirectoryWalker::ReadAheadMode::off)
            return;
        const long blocks = readAheadMode_ == DirectoryWalker::ReadAheadMode::whenCold ? blocksRead() : 0;
        coldLooksInARow_ = blocks - blocksAtLastLook_ >= coldBlocks ? coldLooksInARow_ + 1 : 0;
        if (readAheadMode_ == DirectoryWalker::ReadAheadMode::always || coldLooksInARow_ >= coldLooksToStart)
            readAhead_ = std::make_unique<ReadAhead>(borrowed_);
        blocksAtLastLook_ = blocks;
    }

    void considerGoingAlone()
    {
        if (aloneAfter_ == 0 || (entriesWalked_ += entriesBetweenLooks) < aloneAfter_)
            return;
        aloneAfter_ = 0;
        visitor_.goingAlone();
        // Helpers reading ahead share the table and close what they open in it.
        if (readAhead_)
            return;
        std::vector<int> kept{borrowed_};
        for (const Frame& frame : stack_) {
            if (frame.descriptor >= 0)
                kept.push_back(frame.descriptor);
        }
        useOwnDescriptorTable(std::move(kept));
    }

    // Handles the entry at `start` in the listing of the folder at `level`; false ends the walk.
    bool step(std::size_t level, std::size_t start, std::size_t length)
    {
        if (++entriesSinceLook_ == entriesBetweenLooks) {
            entriesSinceLook_ = 0;
            considerReadingAhead();
            considerGoingAlone();
        }
        const Frame& parent = stack_[level];
        // Not cleared first: the call fills it, and clearing it for every entry shows in a walk.
        struct stat status;
        if (fstatat(parent.descriptor, names_.c_str() + start, &status, AT_SYMLINK_NOFOLLOW) != 0) {
            visitor_.unmeasurable(parent.descriptor, nameAt(start, length), parent.depth + 1);
            return true;
        }
        const ItemInfo info = itemInfoFrom(status);
        const auto action = visitor_.visit({parent.descriptor, nameAt(start, length), info, parent.depth + 1});
        if (action == DirectoryWalker::Action::stop)
            return false;
        if (action == DirectoryWalker::Action::descend && info.isFolder())
            enter(level, start, length, info);
        return true;
    }

    void enter(std::size_t level, std::size_t start, std::size_t length, const ItemInfo& info)
    {
        const int parentDescriptor = stack_[level].descriptor;
        const int depth = stack_[level].depth + 1;
        const int descriptor =
            openat(parentDescriptor, names_.c_str() + start, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (descriptor < 0) {
            visitor_.unreadable({parentDescriptor, nameAt(start, length), info, depth});
            return;
        }
        start = dropVisitedNames(level, start);
        const std::size_t listingStart = names_.size();
        std::uint64_t self = 0;
        const bool whole = appendListing(descriptor, names_, buffer_, self);
        // The folder must still be the one just looked at, not something swapped in since. Its
        // "." says so without another call; only where "." is listed with another number (or
        // not at all) is the folder itself asked.
        const bool same = self == info.inode || sameItem(descriptor, info.device, info.inode);
        if (!same || (!whole && !visitor_.walksPartialListings())) {
            names_.resize(listingStart);
            close(descriptor);
            visitor_.unreadable({parentDescriptor, nameAt(start, length), info, depth});
            return;
        }
        Frame& parent = stack_[level];
        if (parent.depth >= openDepthLimit_ && parent.descriptor != borrowed_) {
            close(parent.descriptor);
            parent.descriptor = -1;
        }
        if (readAhead_)
            readAhead_->entered();
        stack_.push_back({descriptor, depth, info.device, info.inode, static_cast<std::uint32_t>(start),
                          static_cast<std::uint32_t>(length), static_cast<std::uint32_t>(listingStart),
                          static_cast<std::uint32_t>(listingStart)});
    }

    // Before a folder's listing goes on top of its parent's, the names the parent has already
    // visited are dropped, all but the one being entered, whose name leave() still gives — once
    // they are at least as many bytes as those still to visit, so each name is moved a bounded
    // number of times. A deep tree then holds, per level, little more than the names still to come.
    // Returns where the name being entered now begins.
    std::size_t dropVisitedNames(std::size_t level, std::size_t start)
    {
        Frame& parent = stack_[level];
        const std::size_t visited = start - parent.listingStart;
        if (visited == 0 || visited < names_.size() - start)
            return start;
        names_.erase(parent.listingStart, visited);
        parent.next -= static_cast<std::uint32_t>(visited);
        return parent.listingStart;
    }

    // Leaves the finished folder on top of the stack for its parent.
    bool climb()
    {
        const Frame finished = stack_.back();
        stack_.pop_back();
        names_.resize(finished.listingStart);
        releaseUnused(stack_);
        releaseUnused(names_);
        if (stack_.empty())
            return true;  // the root: its descriptor belongs to the caller
        Frame& parent = stack_.back();
        if (parent.descriptor < 0) {
            parent.descriptor = openat(finished.descriptor, "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            if (parent.descriptor < 0 || !sameItem(parent.descriptor, parent.device, parent.inode)) {
                close(finished.descriptor);
                return false;  // the tree was moved while we were inside it: stop rather than guess
            }
        }
        close(finished.descriptor);
        const ItemInfo info = finished.info();
        visitor_.leave({parent.descriptor, nameAt(finished.nameStart, finished.nameLength), info, finished.depth});
        return true;
    }

    DirectoryWalker::Visitor& visitor_;
    Frames stack_;
    Names names_;                       // the listings of the open folders, outermost first
    std::vector<std::uint64_t> buffer_;  // the kernel's records of one read, 8-byte aligned
    int borrowed_ = -1;
    const int openDepthLimit_;
    const DirectoryWalker::ReadAheadMode readAheadMode_;
    long blocksAtLastLook_ = 0;
    int coldLooksInARow_ = 0;
    std::uint32_t entriesSinceLook_ = 0;
    std::uint32_t aloneAfter_;  // 0 once gone alone, or if never to
    std::uint32_t entriesWalked_ = 0;  // as of the last look
    std::unique_ptr<ReadAhead> readAhead_;  // reads below the root's descriptor, which outlives the walk
};

}  // namespace

bool DirectoryWalker::walk(const std::string& root, Visitor& visitor)
{
    const int descriptor = open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool completed = walkDescriptor(descriptor, visitor);
    close(descriptor);
    return completed;
}

bool DirectoryWalker::walkDescriptor(int folderDescriptor, Visitor& visitor, ReadAheadMode readAhead,
                                     std::uint32_t aloneAfter)
{
    return Walk(visitor, readAhead, aloneAfter).run(folderDescriptor);
}

void DirectoryWalker::reserveDescriptors(int anyDescriptor)
{
    // Room for what the process holds besides the walk's own, which take the lowest free numbers.
    constexpr int othersHeld = 256;
    // The lowest free number from there on, so nothing open is touched; the table has grown to
    // hold it by the time the call returns.
    const int placeholder = fcntl(anyDescriptor, F_DUPFD_CLOEXEC, openDepthLimit() + othersHeld);
    if (placeholder >= 0)
        close(placeholder);
}
