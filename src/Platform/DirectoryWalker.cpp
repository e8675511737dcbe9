#include "Platform/DirectoryWalker.h"

#include "Platform/PosixItemInfo.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace {

// Folders shallower than this keep their descriptor open while their contents are walked;
// deeper ones are closed on the way down and reopened through "..".
constexpr int openDepthLimit = 64;

struct Frame {
    int descriptor;          // -1 while closed
    std::uint64_t device;
    std::uint64_t inode;
    std::string name;        // this folder's name in its parent
    ItemInfo info;           // this folder's own metadata, for leave()
    std::vector<std::string> children;
    std::size_t next = 0;
    int depth;               // depth of this folder; its children are depth + 1
};

bool listNames(int descriptor, std::vector<std::string>& names)
{
    const int duplicate = dup(descriptor);
    if (duplicate < 0)
        return false;
    DIR* folder = fdopendir(duplicate);
    if (!folder) {
        close(duplicate);
        return false;
    }
    while (const dirent* entry = readdir(folder)) {
        const char* name = entry->d_name;
        if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')))
            continue;
        names.emplace_back(name);
    }
    closedir(folder);
    return true;
}

bool sameItem(int descriptor, std::uint64_t device, std::uint64_t inode)
{
    struct stat status {};
    return fstat(descriptor, &status) == 0 && static_cast<std::uint64_t>(status.st_dev) == device &&
           static_cast<std::uint64_t>(status.st_ino) == inode;
}

class Walk {
public:
    explicit Walk(DirectoryWalker::Visitor& visitor) : visitor_(visitor) {}

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
        Frame root{rootDescriptor, static_cast<std::uint64_t>(status.st_dev),
                   static_cast<std::uint64_t>(status.st_ino), {}, itemInfoFrom(status), {}, 0, 0};
        if (!listNames(rootDescriptor, root.children))
            return false;
        stack_.push_back(std::move(root));
        while (!stack_.empty()) {
            Frame& top = stack_.back();
            if (top.next == top.children.size()) {
                if (!climb())
                    return false;
                continue;
            }
            if (!step(top, top.children[top.next++]))
                return false;
        }
        return true;
    }

private:
    // Handles one entry of the folder on top of the stack; false ends the walk.
    bool step(Frame& parent, const std::string& name)
    {
        struct stat status {};
        if (fstatat(parent.descriptor, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
            return true;  // vanished since the listing, or unreadable: nothing to count
        const ItemInfo info = itemInfoFrom(status);
        const DirectoryWalker::Entry entry{parent.descriptor, name, info, parent.depth + 1};
        const auto action = visitor_.visit(entry);
        if (action == DirectoryWalker::Action::stop)
            return false;
        if (action == DirectoryWalker::Action::descend && info.isFolder())
            enter(parent, name, info);
        return true;
    }

    void enter(Frame& parent, const std::string& name, const ItemInfo& info)
    {
        const DirectoryWalker::Entry entry{parent.descriptor, name, info, parent.depth + 1};
        const int descriptor = openat(parent.descriptor, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        // The folder must still be the one just looked at, not something swapped in since.
        if (descriptor < 0 || !sameItem(descriptor, info.device, info.inode)) {
            if (descriptor >= 0)
                close(descriptor);
            visitor_.unreadable(entry);
            return;
        }
        Frame child{descriptor, info.device, info.inode, name, info, {}, 0, parent.depth + 1};
        if (!listNames(descriptor, child.children)) {
            close(descriptor);
            visitor_.unreadable(entry);
            return;
        }
        if (parent.depth >= openDepthLimit && parent.descriptor != borrowed_) {
            close(parent.descriptor);
            parent.descriptor = -1;
        }
        stack_.push_back(std::move(child));
    }

    // Leaves the finished folder on top of the stack for its parent.
    bool climb()
    {
        Frame finished = std::move(stack_.back());
        stack_.pop_back();
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
        visitor_.leave({parent.descriptor, finished.name, finished.info, finished.depth});
        return true;
    }

    DirectoryWalker::Visitor& visitor_;
    std::vector<Frame> stack_;
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
