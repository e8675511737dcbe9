#include "Platform/ReadAhead.h"

#include "Platform/KernelListing.h"

#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

struct ReadAhead::Descriptor {
    explicit Descriptor(int descriptor) : value(descriptor) {}
    ~Descriptor() { close(value); }
    int value;
};

ReadAhead::ReadAhead(int rootDescriptor) : root_(rootDescriptor)
{
    pending_.emplace(Position{}, Folder{nullptr, {}});
    for (int i = 0; i < helperCount; ++i)
        helpers_.emplace_back([this] { help(); });
}

ReadAhead::~ReadAhead()
{
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    work_.notify_all();
    for (std::thread& helper : helpers_)
        helper.join();
}

void ReadAhead::help()
{
    std::vector<std::uint64_t> buffer(32768 / sizeof(std::uint64_t));
    std::unique_lock lock(mutex_);
    for (;;) {
        // The walk doesn't wake helpers that are far enough ahead: they look again shortly.
        const bool ahead = read_ - entered_.load(std::memory_order_relaxed) >= lead;
        if (stopping_ || (pending_.empty() && busy_ == 0))
            return;
        if (ahead || pending_.empty()) {
            work_.wait_for(lock, std::chrono::milliseconds(1));
            continue;
        }
        auto first = pending_.begin();
        Position position = std::move(first->first);
        const Folder folder = std::move(first->second);
        pending_.erase(first);
        ++busy_;
        lock.unlock();
        std::vector<Folder> next = read(folder, position.size() < deepest, buffer);
        lock.lock();
        --busy_;
        ++read_;
        position.push_back(0);
        for (Folder& subfolder : next) {
            pending_.emplace(position, std::move(subfolder));
            ++position.back();
        }
        if (!next.empty())
            work_.notify_all();
    }
}

std::vector<ReadAhead::Folder> ReadAhead::read(const Folder& folder, bool withSubfolders,
                                               std::vector<std::uint64_t>& buffer)
{
    // The root is opened anew rather than duplicated: a duplicate would share the walk's place
    // in the listing.
    const int descriptor = folder.parent ? openat(folder.parent->value, folder.name.c_str(),
                                                  O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)
                                         : openat(root_, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return {};
    const auto opened = std::make_shared<Descriptor>(descriptor);
    std::vector<Folder> subfolders;
    std::uint64_t inode = 0;
    forEachListed(descriptor, buffer, inode, [&](const char* name) {
        struct stat status {};
        if (fstatat(descriptor, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode) && withSubfolders)
            subfolders.push_back({opened, name});
    });
    return subfolders;
}
