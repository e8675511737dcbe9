#include "Platform/DirectoryWalker.h"

#include "Platform/PosixItemInfo.h"

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

// Folders shallower than this keep their descriptor open while their contents are walked;
// deeper ones are closed on the way down and reopened through "..".
constexpr int openDepthLimit = 64;

// A folder's listing lives in the walk's shared name buffer, from `listingStart` up to where the
// next folder's begins: each name followed by a zero byte. The folders open at any time are the
// path from the root down, so their listings stack up in that buffer and a finished folder's
// is dropped by shortening it.
struct Frame {
    int descriptor;          // -1 while closed
    std::uint64_t device;
    std::uint64_t inode;
    std::size_t nameStart;   // this folder's name in its parent's listing
    std::size_t nameLength;
    ItemInfo info;           // this folder's own metadata, for leave()
    std::size_t listingStart;
    std::size_t next;        // where the next name to visit begins
    int depth;               // depth of this folder; its children are depth + 1
};

// Appends the names of the folder open at `descriptor`, without "." and "..", each followed by
// a zero byte. Reads the kernel's records straight into one reused buffer: no directory stream
// to allocate, and no duplicate descriptor to give it. A read that fails ends the listing with
// what was read, as a directory stream would.
void appendListing(int descriptor, std::string& names, std::vector<std::uint64_t>& buffer)
{
    const auto bytes = reinterpret_cast<char*>(buffer.data());
    for (;;) {
        const ssize_t got = getdents64(descriptor, bytes, buffer.size() * sizeof(std::uint64_t));
        if (got <= 0)
            return;
        for (ssize_t at = 0; at < got;) {
            const auto* entry = reinterpret_cast<const struct dirent64*>(bytes + at);
            at += entry->d_reclen;
            const char* name = entry->d_name;
            if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')))
                continue;
            names.append(name, std::strlen(name) + 1);
        }
    }
}

bool sameItem(int descriptor, std::uint64_t device, std::uint64_t inode)
{
    struct stat status {};
    return fstat(descriptor, &status) == 0 && static_cast<std::uint64_t>(status.st_dev) == device &&
           static_cast<std::uint64_t>(status.st_ino) == inode;
}

class Walk {
public:
    explicit Walk(DirectoryWalker::Visitor& visitor) : visitor_(visitor), buffer_(listingBufferWords) {}

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
        appendListing(rootDescriptor, names_, buffer_);
        stack_.push_back({rootDescriptor, static_cast<std::uint64_t>(status.st_dev),
                          static_cast<std::uint64_t>(status.st_ino), 0, 0, itemInfoFrom(status), 0, 0, 0});
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
            top.next = start + length + 1;
            if (!step(stack_.size() - 1, start, length))
                return false;
        }
        return true;
    }

private:
    // 32 KB, as a directory stream reads at a time.
    static constexpr std::size_t listingBufferWords = 32768 / sizeof(std::uint64_t);

    std::string_view nameAt(std::size_t start, std::size_t length) const { return {names_.data() + start, length}; }

    // Handles the entry at `start` in the listing of the folder at `level`; false ends the walk.
    bool step(std::size_t level, std::size_t start, std::size_t length)
    {
        const Frame& parent = stack_[level];
        struct stat status {};
        if (fstatat(parent.descriptor, names_.c_str() + start, &status, AT_SYMLINK_NOFOLLOW) != 0)
            return true;  // vanished since the listing, or unreadable: nothing to count
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
        // The folder must still be the one just looked at, not something swapped in since.
        if (descriptor < 0 || !sameItem(descriptor, info.device, info.inode)) {
            if (descriptor >= 0)
                close(descriptor);
            visitor_.unreadable({parentDescriptor, nameAt(start, length), info, depth});
            return;
        }
        const std::size_t listingStart = names_.size();
        appendListing(descriptor, names_, buffer_);
        Frame& parent = stack_[level];
        if (parent.depth >= openDepthLimit && parent.descriptor != borrowed_) {
            close(parent.descriptor);
            parent.descriptor = -1;
        }
        stack_.push_back({descriptor, info.device, info.inode, start, length, info, listingStart, listingStart, depth});
    }

    // Leaves the finished folder on top of the stack for its parent.
    bool climb()
    {
        const Frame finished = stack_.back();
        stack_.pop_back();
        names_.resize(finished.listingStart);
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
        visitor_.leave({parent.descriptor, nameAt(finished.nameStart, finished.nameLength), finished.info,
                        finished.depth});
        return true;
    }

    DirectoryWalker::Visitor& visitor_;
    std::vector<Frame> stack_;
    std::string names_;                  // the listings of the open folders, outermost first
    std::vector<std::uint64_t> buffer_;  // the kernel's records of one read, 8-byte aligned
    int borrowed_ = -1;
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

bool DirectoryWalker::walkDescriptor(int folderDescriptor, Visitor& visitor)
{
    return Walk(visitor).run(folderDescriptor);
}
