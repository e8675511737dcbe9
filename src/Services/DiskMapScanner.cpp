#include "Services/DiskMapScanner.h"

#include "Platform/DirectoryWalker.h"
#include "Platform/FileSystem.h"
#include "Platform/PageAllocator.h"
#include "Platform/Paths.h"
#include "Services/TreeEventQueue.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <span>
#include <system_error>
#include <thread>
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
    std::vector<std::uint64_t> keys;
    std::vector<DiskNode> sorted;
};

// Sizes the walk measures are whole 512-byte blocks. Each entry's key packs its size in blocks,
// inverted, above its listing position, so sorting plain numbers puts the largest first and
// keeps equal sizes in listing order, and comparing never reaches into the records. False when
// a size doesn't fit that form.
bool packedKeys(std::span<const DiskNode> nodes, std::vector<std::uint64_t>& keys)
{
    const int positionBits = std::bit_width(nodes.size() - 1);
    const std::uint64_t mostBlocks = (std::uint64_t{1} << (64 - positionBits)) - 1;
    keys.clear();
    for (std::uint32_t i = 0; i < nodes.size(); ++i) {
        const std::int64_t size = nodes[i].size();
        if (size < 0 || size % 512 != 0 || std::uint64_t(size / 512) > mostBlocks)
            return false;
        keys.push_back(((mostBlocks - std::uint64_t(size / 512)) << positionBits) | i);
    }
    return true;
}

// Largest first; entries of equal size keep their listing order. Each node is moved twice.
void sortLargestFirst(std::span<DiskNode> nodes, SortScratch& scratch)
{
    if (nodes.size() < 2)
        return;
    auto& keys = scratch.keys;
    if (!packedKeys(nodes, keys)) {
        std::stable_sort(nodes.begin(), nodes.end(), [](const DiskNode& a, const DiskNode& b) { return a.size() > b.size(); });
        return;
    }
    if (std::is_sorted(keys.begin(), keys.end()))
        return;
    std::sort(keys.begin(), keys.end());
    const std::uint64_t positionMask = (std::uint64_t{1} << std::bit_width(nodes.size() - 1)) - 1;
    scratch.sorted.clear();
    for (const std::uint64_t key : keys)
        scratch.sorted.push_back(std::move(nodes[key & positionMask]));
    std::move(scratch.sorted.begin(), scratch.sorted.end(), nodes.begin());
}

// Splits a folder's entries, largest first, into those it shows and one node for the rest, in
// place, and returns how many of the entries to keep: those it shows, then that node if there is
// one. The small entries keep their subtrees below that node; only a folder of 0 bytes loses its
// entries. As the entries run largest first, the ones shown are a leading run: the count limit
// and the share threshold each cut off a tail.
std::size_t foldSmallEntries(const DiskNode::Path& folder, std::span<DiskNode> sorted, std::int64_t parentTotal)
{
    if (parentTotal < 1)
        return 0;
    const auto threshold = static_cast<std::int64_t>(static_cast<double>(parentTotal) * keptShare);
    const std::size_t limit = std::min(sorted.size(), keptEntries);
    std::size_t kept = 0;
    while (kept < limit && sorted[kept].size() >= threshold)
        ++kept;
    std::int64_t smallTotal = 0;
    for (std::size_t index = kept; index < sorted.size(); ++index)
        smallTotal += sorted[index].size();
    if (smallTotal < 1)
        return kept;
    // The largest entry is the first, whether it is kept or not; its record outlives the move.
    sorted[kept] = DiskNode::makeSynthetic(folder, sorted.front().name(), smallTotal, sorted.subspan(kept));
    return kept + 1;
}

}  // namespace

std::vector<DiskNode> prune(const DiskNode::Path& folder, std::vector<DiskNode> sorted, std::int64_t parentTotal)
{
    sorted.resize(foldSmallEntries(folder, sorted, parentTotal));
    return sorted;
}

namespace {

// A folder whose entries are all gathered (or as many as a cancelled walk reached). The entries
// are moved into the node.
DiskNode finishedFolder(const DiskNode::Path& parent, std::string_view name, Modified modified,
                        const DiskNode::Path& own, std::span<DiskNode> children, std::int64_t total,
                        SortScratch& scratch)
{
    sortLargestFirst(children, scratch);
    const FileCategory category = FileCategories::bundle(name).value_or(dominantCategory(children));
    const std::size_t kept = foldSmallEntries(own, children, total);
    return DiskNode::makeEntry(parent, name, total, true, category, modified, children.first(kept));
}

// A folder that could not be listed, or was reached after cancellation: it adds nothing.
DiskNode emptyFolder(const DiskNode::Path& parent, std::string_view name)
{
    return DiskNode::makeEntry(parent, name, 0, true, FileCategories::bundle(name).value_or(FileCategory::other),
                               std::nullopt);
}

// One per level of a deep tree, so kept to 32 bytes.
struct OpenFolder {
    DiskNode::Path own;  // this folder's path, without a trailing "/"; its children's prefix
    Clock::TimePoint::rep modifiedTicks;
    std::int64_t total;
    std::uint32_t firstEntry;  // where its entries begin on the gatherer's stack of entries
    bool hasModified;

    std::string_view name() const { return own.lastPart(); }  // unused for the root
    Modified modified() const
    {
        return hasModified ? Modified(Clock::TimePoint(Clock::TimePoint::duration(modifiedTicks))) : std::nullopt;
    }
};

static_assert(sizeof(OpenFolder) == 32);

// Builds the tree bottom-up from the walk's events: a folder becomes a node once its last entry
// is in, and each node is moved into its parent's list, never copied. The entries of all open
// folders lie on one stack, each folder's above its parent's, so a deep tree costs no list of
// its own per level and a wide one reuses the same storage from folder to folder. Once the scan
// is cancelled it takes nothing more; finish() then closes what is open.
class TreeGatherer final : public TreeEvents {
public:
    TreeGatherer(const std::string& rootPath, const CancelToken* token, const Progress& onProgress,
                 const ChildHandler& onChild)
        : token_(token), onProgress_(onProgress), onChild_(onChild)
    {
        open(DiskNode::Path(rootPath == "/" ? std::string_view() : std::string_view(rootPath)), {});
    }

    void item(std::string_view name, std::int64_t allocatedSize, Modified modified) override
    {
        if (cancelled())
            return;
        bytesSeen_ += allocatedSize;
        add(DiskNode::makeEntry(top().own, name, allocatedSize, false, categoryOf(name), modified));
    }

    void opened(std::string_view name, Clock::TimePoint modified) override
    {
        if (!cancelled())
            open(DiskNode::Path(top().own, name), modified);
    }

    void closed() override
    {
        if (!cancelled())
            closeTop();
    }

    void unreadable() override
    {
        if (cancelled())
            return;
        const DiskNode::Path unlisted = std::move(top().own);
        folders_.pop_back();
        add(emptyFolder(top().own, unlisted.lastPart()));
    }

    // After a complete walk only the root is open; after a cancelled one, the folders it was in
    // are closed with what they hold, each with its progress report, innermost first. Makes the
    // root's node.
    DiskNode finish(const DiskNode::Path& prefix, std::string_view name, Modified modified)
    {
        while (folders_.size() > 1)
            closeTop();
        const OpenFolder& root = top();
        return finishedFolder(prefix, name, modified, root.own, entries_, root.total, scratch_);
    }

private:
    bool cancelled() const { return token_ && token_->isCancelled(); }

    OpenFolder& top() { return folders_.back(); }

    void open(DiskNode::Path own, Modified modified)
    {
        folders_.push_back({std::move(own), modified ? modified->time_since_epoch().count() : 0, 0,
                            static_cast<std::uint32_t>(entries_.size()), modified.has_value()});
    }

    // A folder's files mostly share one extension, so the last file's category is reused while
    // the names end in the same "." + extension (with something before the dot, or it would be
    // a hidden name). Extensions are short: they are compared byte by byte.
    FileCategory categoryOf(std::string_view name)
    {
        const std::size_t length = lastExtensionLength_;
        if (length > 0 && name.size() > length + 1 && name[name.size() - length - 1] == '.' &&
            name[name.size() - length - 2] != '/') {
            const char* tail = name.data() + name.size() - length;
            std::size_t same = 0;
            while (same < length && tail[same] == lastExtension_[same])
                ++same;
            if (same == length)
                return lastCategory_;
        }
        lastCategory_ = FileCategories::forFile(name);
        const std::size_t dot = name.rfind('.');
        const bool usable = dot != std::string_view::npos && dot > 0 && name[dot - 1] != '/' &&
                            name.size() - dot - 1 <= lastExtension_.size() &&
                            name.find('/', dot) == std::string_view::npos;
        lastExtensionLength_ = usable ? name.size() - dot - 1 : 0;
        std::copy_n(name.end() - lastExtensionLength_, lastExtensionLength_, lastExtension_.begin());
        return lastCategory_;
    }

    void closeTop()
    {
        OpenFolder folder = std::move(top());
        folders_.pop_back();
        // The clock is only read for someone listening.
        if (onProgress_) {
            const auto now = std::chrono::steady_clock::now();
            if (folders_.size() == 1 || now - lastProgress_ >= progressInterval) {
                lastProgress_ = now;
                onProgress_(bytesSeen_);
            }
        }
        const std::span<DiskNode> children = std::span<DiskNode>(entries_).subspan(folder.firstEntry);
        DiskNode node = finishedFolder(top().own, folder.name(), folder.modified(), folder.own, children, folder.total,
                                       scratch_);
        entries_.resize(folder.firstEntry);
        releaseUnused(entries_);
        releaseUnused(folders_);
        add(std::move(node));
    }

    void add(DiskNode node)
    {
        top().total += node.size();
        entries_.push_back(std::move(node));
        if (folders_.size() == 1 && onChild_)
            onChild_(entries_.back());
    }

    const CancelToken* token_;
    const Progress& onProgress_;
    const ChildHandler& onChild_;
    // Both grow with the depth of the tree.
    std::vector<OpenFolder, PageAllocator<OpenFolder>> folders_;  // the open folders, the root first
    std::vector<DiskNode, PageAllocator<DiskNode>> entries_;      // their entries so far, in the same order
    std::int64_t bytesSeen_ = 0;
    std::chrono::steady_clock::time_point lastProgress_{};
    std::array<char, sizeof(std::uint64_t)> lastExtension_{};  // as spelled
    std::size_t lastExtensionLength_ = 0;  // 0 when the last file had none worth keeping
    FileCategory lastCategory_ = FileCategory::other;
    SortScratch scratch_;
};

// Decides what the walk enters and passes on what it finds. It builds the tree on the walking
// thread at first; once the walk has met enough entries to be worth it, building moves to the
// thread that started the scan, fed in batches, so that it overlaps the walk's waiting in the
// kernel, and the walk goes on alone with a descriptor table of its own. A small tree then costs
// no batches in flight, and a large one no time spent building between two answers. Handing over
// to the queue, a batch goes early where the builder reports something: a folder finished
// (progress) or an entry of the root (streamed).
class WalkFront final : public DirectoryWalker::Visitor {
public:
    // Entries walked before building moves.
    static constexpr std::uint32_t entriesBuiltHere = 20000;

    // Without a queue, building stays on the walking thread.
    WalkFront(TreeGatherer& gatherer, TreeEventQueue* queue, const CancelToken* token, HiddenEntries hidden)
        : target_(&gatherer), queue_(queue), token_(token), skipsHidden_(hidden == HiddenEntries::skipped)
    {
    }

    DirectoryWalker::Action visit(const DirectoryWalker::Entry& entry) override
    {
        if (stopping())
            return DirectoryWalker::Action::stop;
        if (skipsHidden_ && isHidden(entry.name))
            return DirectoryWalker::Action::skip;
        const ItemInfo& info = entry.info;
        if (info.isFolder()) {
            target_->opened(entry.name, info.modified);
            return DirectoryWalker::Action::descend;
        }
        target_->item(entry.name, info.allocatedSize, info.modified);
        if (entry.depth == 1)
            handOverIfDue();
        return DirectoryWalker::Action::skip;
    }

    void leave(const DirectoryWalker::Entry&) override
    {
        target_->closed();
        handOverIfDue();
    }

    // A folder whose listing broke off shows nothing of it, as one that can't be listed at all.
    bool walksPartialListings() const override { return false; }

    void unreadable(const DirectoryWalker::Entry& folder) override
    {
        if (folder.depth == 0)
            rootUnreadable_ = true;
        else
            target_->unreadable();
    }

    // Nothing is known of it, not even that it is a folder: it counts as a file of 0 bytes.
    void unmeasurable(int, std::string_view name, int depth) override
    {
        if (stopping() || (skipsHidden_ && isHidden(name)))
            return;
        target_->item(name, 0, std::nullopt);
        if (depth == 1)
            handOverIfDue();
    }

    // Building moves to the thread that started the scan: its callbacks need the process's
    // descriptors, which the walk is about to leave.
    void goingAlone() override
    {
        if (queue_)
            target_ = queue_;
    }

    bool rootUnreadable() const { return rootUnreadable_; }

private:
    bool handingOver() const { return target_ == queue_; }

    bool stopping() const { return (token_ && token_->isCancelled()) || (handingOver() && queue_->abandoned()); }

    void handOverIfDue()
    {
        if (handingOver())
            queue_->handOverIfDue();
    }

    TreeEvents* target_;  // the gatherer, then the queue once building has moved
    TreeEventQueue* const queue_;
    const CancelToken* const token_;
    const bool skipsHidden_;
    bool rootUnreadable_ = false;
};

// Walks below `descriptor` on a thread made for the walk, which builds the tree at first; a
// large walk moves building here, so the callbacks run on one thread, then the other, never at
// once. Without a thread to be had, does both here. False when the root's listing could not be
// read. A failure on either side stops the other and goes on to the caller once both have ended.
bool walkAndBuild(int descriptor, TreeGatherer& gatherer, const CancelToken* token, HiddenEntries hidden,
                  DirectoryWalker::ReadAheadMode readAhead)
{
    // Before there is one more thread to wait on at each growth.
    DirectoryWalker::reserveDescriptors(descriptor);
    TreeEventQueue queue;
    WalkFront front(gatherer, &queue, token, hidden);
    std::exception_ptr walkFailure;
    std::thread walker;
    try {
        walker = std::thread([&] {
            try {
                DirectoryWalker::walkDescriptor(descriptor, front, readAhead, WalkFront::entriesBuiltHere);
            } catch (...) {
                walkFailure = std::current_exception();
            }
            queue.finish();
        });
    } catch (const std::system_error&) {
        WalkFront here(gatherer, nullptr, token, hidden);
        DirectoryWalker::walkDescriptor(descriptor, here, readAhead);
        return !here.rootUnreadable();
    }
    try {
        // Returns at once if the walk ends before building moves; abandons the queue if building
        // fails, which stops the walk.
        queue.replayInto(gatherer);
    } catch (...) {
        walker.join();
        throw;
    }
    walker.join();
    if (walkFailure)
        std::rethrow_exception(walkFailure);
    return !front.rootUnreadable();
}

// Closes the root's descriptor however the scan ends.
struct ClosedAtEnd {
    const int descriptor;
    ~ClosedAtEnd() { close(descriptor); }
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
                       const Progress& onProgress, const ChildHandler& onChild, HiddenEntries hidden,
                       DirectoryWalker::ReadAheadMode readAhead)
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
        return DiskNode::makeEntry(prefix, name, size, false, FileCategories::forFile(name), modified);
    }
    const int descriptor = (token && token->isCancelled())
                               ? -1
                               : open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return emptyFolder(prefix, name);

    const ClosedAtEnd closing{descriptor};
    TreeGatherer gatherer(path, token.get(), onProgress, onChild);
    if (!walkAndBuild(descriptor, gatherer, token.get(), hidden, readAhead))
        return emptyFolder(prefix, name);
    return gatherer.finish(prefix, name, modified);
}

}  // namespace DiskMapScanner
