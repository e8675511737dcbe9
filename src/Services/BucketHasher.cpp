#include "Services/BucketHasher.h"

#include "Services/FileDigest.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <thread>
#include <unordered_map>

namespace BucketHasher {
namespace {

// More threads than this gain nothing on one disk and make a spinning one seek.
constexpr unsigned maximumThreads = 4;

unsigned threadCount(const Options& options)
{
    if (options.threads > 0)
        return options.threads;
    return std::clamp(std::thread::hardware_concurrency(), 1u, maximumThreads);
}

bool cancelled(const CancelToken* token) { return token && token->isCancelled(); }

// Runs `work` for 0..count-1, taken in order by up to `threads` threads, the caller's among them.
// Each thread looks at the token before it takes the next index. True when every index was taken.
bool forEachInOrder(std::size_t count, unsigned threads, const CancelToken* token,
                    const std::function<void(std::size_t)>& work)
{
    std::atomic<std::size_t> next{0};
    const auto run = [&] {
        while (!cancelled(token)) {
            const std::size_t index = next.fetch_add(1);
            if (index >= count)
                return;
            work(index);
        }
    };
    {
        std::vector<std::jthread> helpers;
        for (std::size_t i = 1; i < std::min<std::size_t>(threads, count); ++i)
            helpers.emplace_back(run);
        run();
    }
    return next.load() >= count;
}

struct EndsKey {
    std::size_t operator()(const FileDigest::Ends& ends) const noexcept
    {
        return std::hash<std::int64_t>{}(ends.length) ^ (ends.first * 31) ^ (ends.last * 131);
    }
};

// The bucket's files in classes that may hold copies of each other, each in walk order: with
// the ends compared, files with equal ends; else the whole bucket. Files alone in their class,
// and files that can't be read, are left out: they drop out here as they would when hashed.
bool classesOf(const std::vector<ScannedFile>& files, const CancelToken* token, const Options& options,
               unsigned threads, std::vector<std::vector<std::size_t>>& classes)
{
    if (!options.setAsideByEnds) {
        classes.emplace_back(files.size());
        std::iota(classes.back().begin(), classes.back().end(), 0);
        return true;
    }
    std::vector<std::optional<FileDigest::Ends>> ends(files.size());
    if (!forEachInOrder(files.size(), threads, token, [&](std::size_t i) { ends[i] = FileDigest::ends(files[i].path); }))
        return false;
    std::unordered_map<FileDigest::Ends, std::size_t, EndsKey> place;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (!ends[i])
            continue;
        const auto [found, isNew] = place.try_emplace(*ends[i], classes.size());
        if (isNew)
            classes.emplace_back();
        classes[found->second].push_back(i);
    }
    std::erase_if(classes, [](const std::vector<std::size_t>& members) { return members.size() < 2; });
    return true;
}

// One piece of work on one file: hash it, or compare it with the first file of its class.
struct Task {
    std::size_t file;
    std::optional<std::size_t> first;
};

}  // namespace

bool digests(const std::vector<ScannedFile>& files, const CancelToken* token, const Options& options,
             std::vector<std::optional<std::string>>& digests, Counters* counters)
{
    const unsigned threads = threadCount(options);
    digests.assign(files.size(), std::nullopt);
    std::vector<std::vector<std::size_t>> classes;
    if (!classesOf(files, token, options, threads, classes))
        return false;
    std::vector<Task> tasks;
    std::size_t candidates = 0;
    for (const auto& members : classes) {
        candidates += members.size();
        for (std::size_t i = 0; i < members.size(); ++i) {
            const bool compared = options.compareWithFirst && i > 0;
            tasks.push_back({members[i], compared ? std::optional(members[0]) : std::nullopt});
        }
    }
    if (counters)
        counters->filesSetAside += static_cast<std::int64_t>(files.size() - candidates);

    const auto hash = [&](std::size_t file) {
        digests[file] = FileDigest::sha256(files[file].path);
        if (counters && digests[file]) {
            ++counters->filesHashed;
            counters->bytesHashed += files[file].size;
        }
    };
    std::vector<char> sameAsFirst(files.size(), 0);
    const bool done = forEachInOrder(tasks.size(), threads, token, [&](std::size_t i) {
        const Task& task = tasks[i];
        if (!task.first) {
            hash(task.file);
            return;
        }
        sameAsFirst[task.file] = FileDigest::sameContents(files[*task.first].path, files[task.file].path);
        if (counters)
            ++counters->filesCompared;
    });
    if (!done)
        return false;
    // A copy takes its first file's digest; a file that differs, or whose first file could not
    // be read after all, is hashed on its own.
    std::vector<std::size_t> rest;
    for (const Task& task : tasks) {
        if (!task.first)
            continue;
        if (sameAsFirst[task.file] && digests[*task.first])
            digests[task.file] = digests[*task.first];
        else
            rest.push_back(task.file);
    }
    return forEachInOrder(rest.size(), threads, token, [&](std::size_t i) { hash(rest[i]); });
}

}  // namespace BucketHasher
