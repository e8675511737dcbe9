#include "Services/DiskMapScanner.h"

#include "Platform/DirectoryWalker.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
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

FileCategory dominantCategory(const std::vector<DiskNode>& nodes)
{
    if (nodes.empty())
        return FileCategory::other;
    std::array<std::int64_t, FileCategories::all.size()> totals{};
    for (const DiskNode& node : nodes)
        totals[static_cast<std::size_t>(node.category())] += node.size();
    const auto largest = std::max_element(totals.begin(), totals.end());
    return static_cast<FileCategory>(largest - totals.begin());
}

// Splits a folder's entries, largest first, into those it shows and one node for the rest. The
// small entries keep their subtrees below that node; only a folder of 0 bytes loses its entries.
}  // namespace

std::vector<DiskNode> prune(const DiskNode::Path& folder, std::vector<DiskNode> sorted, std::int64_t parentTotal)
{
    if (parentTotal < 1)
        return {};
    const auto threshold = static_cast<std::int64_t>(static_cast<double>(parentTotal) * keptShare);
    std::vector<DiskNode> kept;
    std::vector<DiskNode> small;
    std::int64_t smallTotal = 0;
    kept.reserve(std::min(sorted.size(), keptEntries + 1));
    for (std::size_t index = 0; index < sorted.size(); ++index) {
        if (index >= keptEntries || sorted[index].size() < threshold) {
            smallTotal += sorted[index].size();
            small.push_back(std::move(sorted[index]));
        } else {
            kept.push_back(std::move(sorted[index]));
        }
    }
    if (smallTotal < 1)
        return kept;
    const std::string largestName(kept.empty() ? small.front().name() : kept.front().name());
    kept.push_back(DiskNode::makeSynthetic(folder, largestName, smallTotal, std::move(small)));
    return kept;
}

namespace {

// A folder whose entries are all gathered (or as many as a cancelled walk reached).
DiskNode finishedFolder(const DiskNode::Path& parent, std::string_view name, Modified modified,
                        const DiskNode::Path& own, std::vector<DiskNode>& children, std::int64_t total)
{
    std::stable_sort(children.begin(), children.end(),
                     [](const DiskNode& a, const DiskNode& b) { return a.size() > b.size(); });
    const FileCategory category = FileCategories::bundle(name).value_or(dominantCategory(children));
    return DiskNode::makeEntry(parent, name, total, true, category, modified, prune(own, std::move(children), total));
}

// A folder that could not be listed, or was reached after cancellation: it adds nothing.
DiskNode emptyFolder(const DiskNode::Path& parent, std::string_view name)
{
    return DiskNode::makeEntry(parent, name, 0, true, FileCategories::bundle(name).value_or(FileCategory::other),
                               std::nullopt, {});
}

struct OpenFolder {
    DiskNode::Path own;  // this folder's path, without a trailing "/"; its children's prefix
    std::string name;
    Modified modified;
    std::vector<DiskNode> children;
    std::int64_t total = 0;
};

// Builds the tree bottom-up as the walker goes: a folder becomes a node once its last entry is
// in, and each node is moved into its parent's list, never copied.
class TreeGatherer : public DirectoryWalker::Visitor {
public:
    TreeGatherer(const std::string& rootPath, const CancelToken* token, const Progress& onProgress,
                 const ChildHandler& onChild)
        : token_(token), onProgress_(onProgress), onChild_(onChild)
    {
        stack_.push_back({DiskNode::Path(rootPath == "/" ? std::string_view() : std::string_view(rootPath)), {}, {}, {}, 0});
    }

    DirectoryWalker::Action visit(const DirectoryWalker::Entry& entry) override
    {
        if (token_ && token_->isCancelled())
            return DirectoryWalker::Action::stop;
        if (isHidden(entry.name))
            return DirectoryWalker::Action::skip;
        const ItemInfo& info = entry.info;
        if (info.isFolder()) {
            const std::string_view parent = stack_.back().own.view();
            std::string path;
            path.reserve(parent.size() + 1 + entry.name.size());
            path.append(parent).append(1, '/').append(entry.name);
            stack_.push_back({DiskNode::Path(path), std::string(entry.name), info.modified, {}, 0});
            return DirectoryWalker::Action::descend;
        }
        bytesSeen_ += info.allocatedSize;
        add(DiskNode::makeEntry(stack_.back().own, entry.name, info.allocatedSize, false, categoryOf(entry.name),
                                info.modified, {}));
        return DirectoryWalker::Action::skip;
    }

    void leave(const DirectoryWalker::Entry&) override { closeTop(); }

    void unreadable(const DirectoryWalker::Entry&) override
    {
        OpenFolder folder = std::move(stack_.back());
        stack_.pop_back();
        add(emptyFolder(stack_.back().own, folder.name));
    }

    // After a complete walk only the root is open; after a cancelled one, the folders it was in
    // are closed with what they hold, each with its progress report, innermost first.
    OpenFolder& finish()
    {
        while (stack_.size() > 1)
            closeTop();
        return stack_.front();
    }

    std::int64_t bytesSeen() const { return bytesSeen_; }

private:
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
        OpenFolder folder = std::move(stack_.back());
        stack_.pop_back();
        const auto now = std::chrono::steady_clock::now();
        if (onProgress_ && (stack_.size() == 1 || now - lastProgress_ >= progressInterval)) {
            lastProgress_ = now;
            onProgress_(bytesSeen_);
        }
        add(finishedFolder(stack_.back().own, folder.name, folder.modified, folder.own, folder.children, folder.total));
    }

    void add(DiskNode node)
    {
        OpenFolder& parent = stack_.back();
        parent.total += node.size();
        parent.children.push_back(std::move(node));
        if (stack_.size() == 1 && onChild_)
            onChild_(parent.children.back());
    }

    const CancelToken* token_;
    const Progress& onProgress_;
    const ChildHandler& onChild_;
    std::vector<OpenFolder> stack_;
    std::int64_t bytesSeen_ = 0;
    std::chrono::steady_clock::time_point lastProgress_{};
    std::optional<std::string> cachedExtension_;
    FileCategory cachedCategory_ = FileCategory::other;
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
                       const Progress& onProgress, const ChildHandler& onChild)
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

    TreeGatherer gatherer(path, token.get(), onProgress, onChild);
    DirectoryWalker::walkDescriptor(descriptor, gatherer);
    close(descriptor);
    OpenFolder& top = gatherer.finish();
    return finishedFolder(prefix, name, modified, top.own, top.children, top.total);
}

}  // namespace DiskMapScanner
