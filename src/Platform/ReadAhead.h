#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

// Reads a tree's folder listings and item metadata on helper threads ahead of a walk, so that
// the walk, which asks for the same things in nearly the same order, finds them in the system's
// caches instead of waiting for the disk one request at a time. The walk sees nothing of it: it
// still makes every call itself and gets the same answers; only the waiting moves to several
// requests in flight at once. Helpers stay a bounded number of folders ahead, so what they read
// is still cached when the walk comes to it.
class ReadAhead {
public:
    static constexpr int helperCount = 4;
    // Folders the helpers may have read beyond those the walk has entered.
    static constexpr long lead = 256;
    // Folders deeper than this below the root are left to the walk.
    static constexpr int deepest = 64;

    // Starts the helpers at the folder open at `rootDescriptor`, which they don't close.
    explicit ReadAhead(int rootDescriptor);
    // Stops the helpers and waits for them.
    ~ReadAhead();

    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    // The walk entered one more folder: the helpers may go on.
    void entered() { entered_.fetch_add(1, std::memory_order_relaxed); }

private:
    struct Descriptor;
    struct Folder {
        std::shared_ptr<Descriptor> parent;  // none for the root
        std::string name;
    };
    // A folder's place in the walk's order: the positions among their folder's subfolders of it
    // and of each folder above it. The walk enters folders in the order of these, compared as
    // words are, a folder right before everything below it.
    using Position = std::vector<std::uint32_t>;

    void help();
    // Lists `folder`, reads the metadata of its entries and returns its subfolders to read next.
    std::vector<Folder> read(const Folder& folder, bool withSubfolders, std::vector<std::uint64_t>& buffer);

    const int root_;
    std::mutex mutex_;
    std::condition_variable work_;
    std::map<Position, Folder> pending_;  // the first is the one the walk comes to first
    int busy_ = 0;                 // helpers reading a folder now
    long read_ = 0;                // folders read
    bool stopping_ = false;
    std::atomic<long> entered_{0};
    std::vector<std::thread> helpers_;
};
