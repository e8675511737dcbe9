#include "Services/DuplicateScanner.h"

#include "Platform/DirectoryWalker.h"
#include "Platform/Paths.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <numeric>
#include <unistd.h>
#include <unordered_map>

namespace DuplicateScanner {
namespace {

bool isHidden(std::string_view name) { return !name.empty() && name.front() == '.'; }

// Gathers every regular file below the root in the order the walk meets them, keeping the path
// of the folder it is in as it goes down and up.
class FileCollector : public DirectoryWalker::Visitor {
public:
    FileCollector(std::string rootPath, const CancelToken* token, const Progress& onProgress)
        : folder_(std::move(rootPath)), token_(token), onProgress_(onProgress)
    {
    }

    DirectoryWalker::Action visit(const DirectoryWalker::Entry& entry) override
    {
        if (token_ && token_->isCancelled()) {
            cancelled_ = true;
            return DirectoryWalker::Action::stop;
        }
        if (isHidden(entry.name))
            return DirectoryWalker::Action::skip;
        if (entry.info.isFolder()) {
            openFolders_.push_back(folder_.size());
            folder_.append("/").append(entry.name);
            return DirectoryWalker::Action::descend;
        }
        if (!entry.info.isRegularFile())
            return DirectoryWalker::Action::skip;  // links, devices, sockets
        std::string path;
        path.reserve(folder_.size() + 1 + entry.name.size());
        path.append(folder_).append("/").append(entry.name);
        // The kernel always knows the allocation, so the length never stands in for it here.
        files_.push_back({std::move(path), entry.info.allocatedSize});
        if (onProgress_ && std::ssize(files_) % progressStep == 0)
            onProgress_(std::ssize(files_));
        return DirectoryWalker::Action::skip;
    }

    void leave(const DirectoryWalker::Entry&) override { closeFolder(); }
    void unreadable(const DirectoryWalker::Entry&) override { closeFolder(); }

    bool cancelled() const { return cancelled_; }
    std::vector<ScannedFile>& files() { return files_; }

private:
    void closeFolder()
    {
        folder_.resize(openFolders_.back());
        openFolders_.pop_back();
    }

    std::string folder_;  // without a trailing "/"; empty for the root "/"
    std::vector<std::size_t> openFolders_;
    const CancelToken* token_;
    const Progress& onProgress_;
    std::vector<ScannedFile> files_;
    bool cancelled_ = false;
};

// An absolute path without trailing slashes: "/" becomes "", so that children read "/name".
std::string walkPrefix(const std::string& root)
{
    std::error_code error;
    std::string path = std::filesystem::absolute(Paths::expandingTilde(root), error).string();
    while (!path.empty() && path.back() == '/')
        path.pop_back();
    return path;
}

bool cancelled(const std::shared_ptr<CancelToken>& token) { return token && token->isCancelled(); }

bool moreReclaimable(const DuplicateGroup& a, const DuplicateGroup& b) { return a.reclaimable() > b.reclaimable(); }

}  // namespace

std::vector<ScannedFile> largest(const std::vector<ScannedFile>& all)
{
    // Size, then position, orders every file strictly: a partial sort by it is stable.
    std::vector<std::size_t> order(all.size());
    std::iota(order.begin(), order.end(), 0);
    const std::size_t kept = std::min(largestCap, all.size());
    std::partial_sort(order.begin(), order.begin() + std::ptrdiff_t(kept), order.end(),
                      [&all](std::size_t a, std::size_t b) {
                          return all[a].size != all[b].size ? all[a].size > all[b].size : a < b;
                      });
    std::vector<ScannedFile> top;
    top.reserve(kept);
    for (std::size_t i = 0; i < kept; ++i)
        top.push_back(all[order[i]]);
    return top;
}

std::vector<std::vector<ScannedFile>> candidateBuckets(const std::vector<ScannedFile>& all)
{
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].size >= duplicateFloor)
            order.push_back(i);
    }
    std::stable_sort(order.begin(), order.end(),
                     [&all](std::size_t a, std::size_t b) { return all[a].size > all[b].size; });
    std::vector<std::vector<ScannedFile>> buckets;
    for (std::size_t start = 0; start < order.size();) {
        std::size_t end = start + 1;
        while (end < order.size() && all[order[end]].size == all[order[start]].size)
            ++end;
        if (end - start >= 2) {
            auto& bucket = buckets.emplace_back();
            for (std::size_t i = start; i < end; ++i)
                bucket.push_back(all[order[i]]);
        }
        start = end;
    }
    return buckets;
}

std::vector<DuplicateGroup> sortedGroups(std::vector<DuplicateGroup> groups)
{
    std::stable_sort(groups.begin(), groups.end(), moreReclaimable);
    return groups;
}

std::vector<DuplicateGroup> groupsOf(const std::vector<ScannedFile>& bucket,
                                     const std::vector<std::optional<std::string>>& digests)
{
    std::vector<DuplicateGroup> byDigest;
    std::unordered_map<std::string, std::size_t> place;
    for (std::size_t i = 0; i < bucket.size(); ++i) {
        if (!digests[i])
            continue;
        const auto [found, isNew] = place.try_emplace(*digests[i], byDigest.size());
        if (isNew)
            byDigest.push_back({*digests[i], bucket[i].size, {}});
        byDigest[found->second].files.push_back(bucket[i]);
    }
    std::erase_if(byDigest, [](const DuplicateGroup& group) { return group.files.size() < 2; });
    return byDigest;
}

void scan(const std::string& root, const std::shared_ptr<CancelToken>& token, const Progress& onProgress,
          const ResultHandler& onResult, const Options& options)
{
    const std::string prefix = walkPrefix(root);
    const int descriptor = ::open(prefix.empty() ? "/" : prefix.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    FileCollector collector(prefix, token.get(), onProgress);
    DirectoryWalker::walkDescriptor(descriptor, collector);
    ::close(descriptor);
    if (collector.cancelled() || cancelled(token))
        return;
    const std::vector<ScannedFile>& all = collector.files();
    if (onProgress)
        onProgress(std::ssize(all));

    FileScanResult result{largest(all), {}};
    if (onResult)
        onResult(result);

    // The picture's groups stay sorted as each bucket's are merged in: a bucket's groups come
    // after every earlier one's, so among equal amounts the earlier keep their place.
    std::vector<std::optional<std::string>> digests;
    for (const std::vector<ScannedFile>& bucket : candidateBuckets(all)) {
        if (cancelled(token))
            return;
        if (!BucketHasher::digests(bucket, token.get(), options.hashing, digests, options.counters))
            return;
        std::vector<DuplicateGroup> found = sortedGroups(groupsOf(bucket, digests));
        if (found.empty())
            continue;
        std::vector<DuplicateGroup> merged;
        merged.reserve(result.duplicates.size() + found.size());
        std::merge(std::make_move_iterator(result.duplicates.begin()), std::make_move_iterator(result.duplicates.end()),
                   std::make_move_iterator(found.begin()), std::make_move_iterator(found.end()),
                   std::back_inserter(merged), moreReclaimable);
        result.duplicates = std::move(merged);
        if (onResult)
            onResult(result);
    }
    if (onResult)
        onResult(result);
}

}  // namespace DuplicateScanner
