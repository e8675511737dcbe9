#include "Services/BucketHasher.h"

#include "Services/FileDigest.h"

#include <algorithm>
#include <functional>
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

// The files that may have a twin: those whose ends match another file's. Files that can't be
// read drop out here as they would when hashed.
bool filesWithMatchingEnds(const std::vector<ScannedFile>& files, const CancelToken* token, unsigned threads,
                           std::vector<std::size_t>& matching)
{
    std::vector<std::optional<FileDigest::Ends>> ends(files.size());
    if (!forEachInOrder(files.size(), threads, token, [&](std::size_t i) { ends[i] = FileDigest::ends(files[i].path); }))
        return false;
    std::unordered_map<FileDigest::Ends, int, EndsKey> counts;
    for (const auto& end : ends) {
        if (end)
            ++counts[*end];
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (ends[i] && counts[*ends[i]] > 1)
            matching.push_back(i);
    }
    return true;
}

}  // namespace

bool digests(const std::vector<ScannedFile>& files, const CancelToken* token, const Options& options,
             std::vector<std::optional<std::string>>& digests, Counters* counters)
{
    const unsigned threads = threadCount(options);
    digests.assign(files.size(), std::nullopt);
    std::vector<std::size_t> candidates;
    if (options.setAsideByEnds) {
        if (!filesWithMatchingEnds(files, token, threads, candidates))
            return false;
    } else {
        for (std::size_t i = 0; i < files.size(); ++i)
            candidates.push_back(i);
    }
    if (counters)
        counters->filesSetAside += static_cast<std::int64_t>(files.size() - candidates.size());
    return forEachInOrder(candidates.size(), threads, token, [&](std::size_t i) {
        const ScannedFile& file = files[candidates[i]];
        digests[candidates[i]] = FileDigest::sha256(file.path);
        if (counters && digests[candidates[i]]) {
            ++counters->filesHashed;
            counters->bytesHashed += file.size;
        }
    });
}

}  // namespace BucketHasher
