#include "Services/DiskMapScanner.h"

#include "Platform/DirectoryWalker.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <span>
#include <unistd.h>
#include <utility>
#include <vector>

namespace DiskMapScanner {
namespace {

// A folder keeps at most this many entries of its own, each at least this share of its size.
constexpr std::size_t keptEntries = 60;
constexpr double keptShare = 0.004;
// Progress is offered at most this often, so a walk of many small folders doesn't flood the
// thread that shows it; the report before each streamed entry always goes out.
constexpr auto progressInterval = std::chrono::milliseconds(50);

using Modified = std::optional<Clock::TimePoint>;

bool isHidden(std::string_view name)
{
    return !name.empty() && name.front() == '.';
}

FileCategory dominantCategory(std::span<const DiskNode> nodes)
{
    if (nodes.empty())
        return FileCategory::other;
    std::array<std::int64_t, FileCategories::all.size()> totals{};
    for (const DiskNode& node : nodes)
        totals[static_cast<std::size_t>(node.category())] += node.size();
    const auto largest = std::max_element(totals.begin(), totals.end());
    return static_cast<FileCategory>(largest - totals.begin());
}

// What sorting a folder's entries needs besides the entries, kept from one folder to the next so
// that sorting allocates nothing once the walk has met its largest folder.
struct SortScratch {
    std::vector<std::pair<std::int64_t, std::uint32_t>> keys;  // minus the size, listing position
    std::vector<DiskNode> sorted;
};

// Largest first; entries of equal size keep their listing order. The sizes are sorted apart from
// the nodes, so comparing never reaches into the records, and each node is moved once.
void sortLargestFirst(std::vector<DiskNode>& nodes, SortScratch& scratch)
{
    if (nodes.size() < 2)
        return;
    auto& keys = scratch.keys;
    keys.clear();
    bool inOrder = true;
    for (std::uint32_t i = 0; i < nodes.size(); ++i) {
        keys.emplace_back(-nodes[i].size(), i);
        inOrder = inOrder && (i == 0 || keys[i - 1].first <= keys[i].first);
    }
    if (inOrder)
        return;
    std::sort(keys.begin(), keys.end());
    scratch.sorted.clear();
    for (const auto& key : keys)
        scratch.sorted.push_back(std::move(nodes[key.second]));
    nodes.swap(scratch.sorted);
}

// Splits a folder's entries, largest first, into those it shows and one node for the rest, in
// place, so the list keeps its storage. The small entries keep their subtrees below that node;
// only a folder of 0 bytes loses its entries. As the entries run largest first, the ones shown
// are a leading run: the count limit and the share threshold each cut off a tail.
void foldSmallEntries(const DiskNode::Path& folder, std::vector<DiskNode>& sorted, std::int64_t parentTotal)
{
    if (parentTotal < 1) {
        sorted.clear();
        return;
    }
    const auto threshold = static_cast<std::int64_t>(static_cast<double>(parentTotal) * keptShare);
    const std::size_t limit = std::min(sorted.size(), keptEntries);
    std::size_t kept = 0;
    while (kept < limit && sorted[kept].size() >= threshold)
        ++kept;
    std::int64_t smallTotal = 0;
    for (std::size_t index = kept; index < sorted.size(); ++index)
        smallTotal += sorted[index].size();
    if (smallTotal < 1) {
        sorted.resize(kept);
        return;
    }
    // The largest entry is the first, whether it is kept or not; its record outlives the move.
    DiskNode synthetic = DiskNode::makeSynthetic(folder, sorted.front().name(), smallTotal,
                                                 std::span<DiskNode>(sorted).subspan(kept));
    sorted.resize(kept);
    sorted.push_back(std::move(synthetic));
}

}  // namespace

std::vector<DiskNode> prune(const DiskNode::Path& folder, std::vector<DiskNode> sorted, std::int64_t parentTotal)
{
    foldSmallEntries(folder, sorted, parentTotal);
    return sorted;
}

namespace {

// A folder whose entries are all gathered (or as many as a cancelled walk reached). The entries
// are moved into the node; `children` is left empty with its storage, for the next folder.
DiskNode finishedFolder(const DiskNode::Path& parent, std::string_view name, Modified modified,
                        const DiskNode::Path& own, std::vector<DiskNode>& children, std::int64_t total,
                        SortScratch& scratch)
{
    sortLargestFirst(children, scratch);
    const FileCategory category = FileCategories::bundle(name).value_or(dominantCategory(children));
    foldSmallEntries(own, children, total);
    return DiskNode::makeEntry(parent, name, total, true, category, modified, std::move(children));
}

// A folder that could not be listed, or was reached after cancellation: it adds nothing.
DiskNode emptyFolder(const DiskNode::Path& parent, std::string_view name)
{
    return DiskNode::makeEntry(parent, name, 0, true, FileCategories::bundle(name).value_or(FileCategory::other),
                               std::nullopt, {});
}

struct OpenFolder {
    DiskNode::Path own;  // this folder's path, without a trailing "/"; its children's prefix
    Modified modified;
    std::vector<DiskNode> children;
    std::int64_t total = 0;

    std::string_view name() const { return own.lastPart(); }  // unused for the root
};

// Builds the tree bottom-up as the walker goes: a folder becomes a node once its last entry is
// in, and each node is moved into its parent's list, never copied. An open folder's slot
// outlives it, so the next folder at the same depth reuses the storage of the last one's list
// instead of growing its own from nothing.
class TreeGatherer : public DirectoryWalker::Visitor {
public:
    TreeGatherer(const std::string& rootPath, const CancelToken* token, const Progress& onProgress,
                 const ChildHandler& onChild, HiddenEntries hidden)
        : token_(token), onProgress_(onProgress), onChild_(onChild), skipsHidden_(hidden == HiddenEntries::skipped)
    {
        open(DiskNode::Path(rootPath == "/" ? std::string_view() : std::string_view(rootPath)), {});
    }

    DirectoryWalker::Action visit(const DirectoryWalker::Entry& entry) override
    {
        if (token_ && token_->isCancelled())
            return DirectoryWalker::Action::stop;
        if (skipsHidden_ && isHidden(entry.name))
            return DirectoryWalker::Action::skip;
        const ItemInfo& info = entry.info;
        if (info.isFolder()) {
            open(DiskNode::Path(top().own, entry.name), info.modified);
            return DirectoryWalker::Action::descend;
        }
        bytesSeen_ += info.allocatedSize;
        add(DiskNode::makeEntry(top().own, entry.name, info.allocatedSize, false, categoryOf(entry.name),
                                info.modified, {}));
        return DirectoryWalker::Action::skip;
    }

    void leave(const DirectoryWalker::Entry&) override { closeTop(); }

    // A folder whose listing broke off shows nothing of it, as one that can't be listed at all.
    bool walksPartialListings() const override { return false; }

    void unreadable(const DirectoryWalker::Entry& folder) override
    {
        if (folder.depth == 0) {
            rootUnreadable_ = true;
            return;
        }
        const OpenFolder& unlisted = top();
        --depth_;
        add(emptyFolder(top().own, unlisted.name()));
    }

    // Nothing is known of it, not even that it is a folder: it counts as a file of 0 bytes.
    void unmeasurable(int, std::string_view name, int) override
    {
        if ((token_ && token_->isCancelled()) || (skipsHidden_ && isHidden(name)))
            return;
        add(DiskNode::makeEntry(top().own, name, 0, false, categoryOf(name), std::nullopt, {}));
    }

    // After a complete walk only the root is open; after a cancelled one, the folders it was in
    // are closed with what they hold, each with its progress report, innermost first.
    OpenFolder& finish()
    {
        while (depth_ > 1)
            closeTop();
        return top();
    }

    std::int64_t bytesSeen() const { return bytesSeen_; }
    SortScratch& sortScratch() { return scratch_; }
    bool rootUnreadable() const { return rootUnreadable_; }

private:
    OpenFolder& top() { return slots_[depth_ - 1]; }

    void open(const DiskNode::Path& own, Modified modified)
    {
        if (depth_ == slots_.size())
            slots_.emplace_back();
        OpenFolder& folder = slots_[depth_++];
        folder.own = own;
        folder.modified = modified;
        folder.total = 0;
    }

    // A file's category depends on its extension alone, and a folder's files mostly share one,
    // so the last answer is reused while the extension stays the same.
    FileCategory categoryOf(std::string_view name)
    {
        const auto dot = name.rfind('.');
        const std::string_view extension = (dot == std::string_view::npos || dot == 0) ? std::string_view()
                                                                                       : name.substr(dot + 1);
        if (!cachedExtension_ || extension != *cachedExtension_) {
            cachedExtension_ = std::string(extension);
            cachedCategory_ = FileCategories::forFile(name);
        }
        return cachedCategory_;
    }

    void closeTop()
    {
        OpenFolder& folder = top();
        --depth_;
        // The clock is only read for someone listening.
        if (onProgress_) {
            const auto now = std::chrono::steady_clock::now();
            if (depth_ == 1 || now - lastProgress_ >= progressInterval) {
                lastProgress_ = now;
                onProgress_(bytesSeen_);
            }
        }
        add(finishedFolder(top().own, folder.name(), folder.modified, folder.own, folder.children, folder.total,
                           scratch_));
    }

    void add(DiskNode node)
    {
        OpenFolder& parent = top();
        parent.total += node.size();
        parent.children.push_back(std::move(node));
        if (depth_ == 1 && onChild_)
            onChild_(parent.children.back());
    }

    const CancelToken* token_;
    const Progress& onProgress_;
    const ChildHandler& onChild_;
    const bool skipsHidden_;
    std::vector<OpenFolder> slots_;  // the first depth_ are the open folders, the root first
    std::size_t depth_ = 0;
    std::int64_t bytesSeen_ = 0;
    std::chrono::steady_clock::time_point lastProgress_{};
    std::optional<std::string> cachedExtension_;
    FileCategory cachedCategory_ = FileCategory::other;
    bool rootUnreadable_ = false;
    SortScratch scratch_;
};

// An absolute path without trailing slashes, as the ids of the tree spell it.
std::string normalisedRoot(const std::string& root)
{
    std::string path = Paths::expandingTilde(root);
    if (path.empty() || path.front() != '/') {
        std::error_code error;
        const auto current = std::filesystem::current_path(error);
        path = (error ? std::string("/") : current.string()) + "/" + path;
    }
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

// The folder holding `path`, as a prefix its own node's id is joined to: "" for an item at the
// top, none for "/" itself, whose id is its name.
DiskNode::Path prefixOf(const std::string& path)
{
    if (path == "/")
        return {};
    return DiskNode::Path(std::string_view(path).substr(0, path.rfind('/')));
}

}  // namespace

DiskNode scanStreaming(const std::string& root, const std::shared_ptr<CancelToken>& token,
                       const Progress& onProgress, const ChildHandler& onChild, HiddenEntries hidden)
{
    const std::string path = normalisedRoot(root);
    const std::string lastComponent = Paths::lastComponent(path);
    const std::string name = lastComponent.empty() ? path : lastComponent;
    const DiskNode::Path prefix = prefixOf(path);
    const auto info = FileSystem::info(path);
    const Modified modified = info ? Modified(info->modified) : std::nullopt;

    if (!info || !info->isFolder()) {
        // Absent values mean "not a folder": an unreadable root is a file of 0 bytes.
        const std::int64_t size = info ? info->allocatedSize : 0;
        return DiskNode::makeEntry(prefix, name, size, false, FileCategories::forFile(name), modified, {});
    }
    const int descriptor = (token && token->isCancelled())
                               ? -1
                               : open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return emptyFolder(prefix, name);

    TreeGatherer gatherer(path, token.get(), onProgress, onChild, hidden);
    DirectoryWalker::walkDescriptor(descriptor, gatherer);
    close(descriptor);
    if (gatherer.rootUnreadable())
        return emptyFolder(prefix, name);
    OpenFolder& top = gatherer.finish();
    return finishedFolder(prefix, name, modified, top.own, top.children, top.total, gatherer.sortScratch());
}

}  // namespace DiskMapScanner
