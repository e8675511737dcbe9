#pragma once

#include "Models/FileCategory.h"
#include "Platform/Clock.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// One item of the disk map: a file, a folder, or the "(smaller items)" node a folder folds its
// small entries into. A node is a handle to an immutable, reference-counted record, so copying
// it — into a callback, across threads, into a provisional root — costs one atomic increment
// and never copies a subtree. The setters give the handle a changed record of its own and leave
// every other copy as it was.
//
// Memory: a record is 32 bytes, followed by the name's bytes inline, cut from a slab
// (Models/NodeSlabs) rather than allocated on its own; a record with children adds 8 bytes and 8
// per child. Ids are not stored whole — every child of a folder shares one copy of the folder's
// path and joins its own name to it when asked. A folder's path is its own name and a reference
// to its parent's, 16 bytes plus the name, once per folder, so a tree thousands of levels deep
// doesn't store its long paths over and over. A file with a 12-byte name takes 48 bytes with the
// rounding to 8, plus its parent's 8-byte reference; a "(smaller items)" node doesn't store its
// name.
class DiskNode {
public:
    // A folder's path, shared by all of its children's records.
    class Path {
    public:
        Path() = default;
        explicit Path(std::string_view text);
        // `folder` + "/" + `name`: the walk makes one per folder it enters, holding `folder`.
        Path(const Path& folder, std::string_view name);
        Path(const Path& other);
        Path(Path&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
        Path& operator=(const Path& other);
        Path& operator=(Path&& other) noexcept
        {
            std::swap(text_, other.text_);
            return *this;
        }
        ~Path();
        std::size_t length() const;
        void appendTo(std::string& text) const;
        std::string text() const;
        // The name a path was made with from its folder's; the whole text of any other.
        std::string_view lastPart() const;
        explicit operator bool() const { return text_ != nullptr; }

        struct Text;

    private:
        Text* text_ = nullptr;
    };

    // An empty file node with an empty id.
    DiskNode() = default;
    // Any node, as a value: the walk uses the cheaper makeEntry.
    DiskNode(std::string_view id, std::string_view name, std::int64_t size, bool isDirectory,
             FileCategory category, std::optional<Clock::TimePoint> modified, bool isSynthetic,
             std::vector<DiskNode> children);

    // An entry `name` of the folder at `folder` (id = folder + "/" + name). The children are
    // moved out of `children`, which keeps its length.
    static DiskNode makeEntry(const Path& folder, std::string_view name, std::int64_t size,
                              bool isDirectory, FileCategory category,
                              std::optional<Clock::TimePoint> modified, std::span<DiskNode> children = {});
    // The "(smaller items)" node of `folder`; its id is `largestName`'s id followed by "#other".
    // The children are moved out of `children`, which keeps its length.
    static DiskNode makeSynthetic(const Path& folder, std::string_view largestName, std::int64_t size,
                                  std::span<DiskNode> children);

    DiskNode(const DiskNode& other) noexcept;
    DiskNode(DiskNode&& other) noexcept : data_(other.data_) { other.data_ = nullptr; }
    DiskNode& operator=(const DiskNode& other) noexcept;
    DiskNode& operator=(DiskNode&& other) noexcept;
    ~DiskNode();

    static constexpr std::string_view syntheticName = "(smaller items)";

    std::string id() const;
    std::string_view name() const;
    std::int64_t size() const;
    bool isDirectory() const;
    FileCategory category() const;
    std::optional<Clock::TimePoint> modified() const;
    bool isSynthetic() const;
    // Kept entries in descending size, the synthetic node, if any, last. Empty for files.
    std::span<const DiskNode> children() const;
    // This node and every one below it, synthetic nodes not counted: the items the walk found.
    // Counted without recursion.
    std::int64_t itemCount() const;

    void setCategory(FileCategory category);
    void setModified(std::optional<Clock::TimePoint> modified);
    void setSynthetic(bool isSynthetic);
    void setChildren(std::vector<DiskNode> children);

    // Both handles show the same record: equal without looking further.
    bool sharesRecordWith(const DiskNode& other) const { return data_ == other.data_; }

    // All eight fields, children included and in order. Deep trees are compared without
    // recursion.
    bool operator==(const DiskNode& other) const;

    struct Record;

private:
    friend struct Record;
    explicit DiskNode(Record* data) : data_(data) {}
    static DiskNode allocate(const Path& prefix, std::string_view tail, std::string_view separateName,
                             std::int64_t size, std::uint8_t flags, FileCategory category,
                             std::optional<Clock::TimePoint> modified, std::size_t childCount);
    DiskNode rebuilt(std::vector<DiskNode> children) const;
    static void release(Record* data);

    Record* data_ = nullptr;
};

// The record behind a handle. A record with children or a separately stored name is followed by
// its Extra, then its children; then, in every record, its text. Files, most of the tree, have no
// Extra.
struct DiskNode::Record {
    std::atomic<std::uint32_t> references{1};
    std::uint16_t tailLength = 0;        // the id after prefix + "/"
    std::uint8_t category = 0;
    std::uint8_t flags = 0;
    std::int64_t size = 0;
    Clock::TimePoint::rep modified = 0;  // meaningful with the hasModified flag only
    Path prefix;                         // the folder holding the item; none when the text is the id

    struct Extra {
        std::uint32_t childCount = 0;
        std::uint16_t nameLength = 0;  // a name stored apart from the tail
    };

    enum Flag : std::uint8_t {
        directoryFlag = 1,
        syntheticFlag = 2,
        modifiedFlag = 4,
        separateNameFlag = 8,  // the name follows the tail instead of being the tail
        wholeIdFlag = 16,      // the prefix is the whole id and the tail is empty
        ownMemoryFlag = 32,    // too large for a slab: allocated on its own
        extraFlag = 64,        // an Extra follows the record
        syntheticNameFlag = 128,  // the name is syntheticName, not stored
    };

    const Extra* extra() const { return (flags & extraFlag) ? reinterpret_cast<const Extra*>(this + 1) : nullptr; }
};

static_assert(sizeof(DiskNode) == 8, "a node handle is one pointer");
static_assert(sizeof(DiskNode::Record) == 32, "32 bytes per node before its children and name");
static_assert(sizeof(DiskNode::Record::Extra) == 8, "children follow the Extra 8-byte aligned");

// The accessors that sorting, pruning and traversals call once per item are inline.
inline std::int64_t DiskNode::size() const
{
    return data_ ? data_->size : 0;
}

inline bool DiskNode::isDirectory() const
{
    return data_ && (data_->flags & Record::directoryFlag);
}

inline FileCategory DiskNode::category() const
{
    return data_ ? static_cast<FileCategory>(data_->category) : FileCategory::other;
}

inline bool DiskNode::isSynthetic() const
{
    return data_ && (data_->flags & Record::syntheticFlag);
}

inline std::span<const DiskNode> DiskNode::children() const
{
    const Record::Extra* extra = data_ ? data_->extra() : nullptr;
    if (!extra)
        return {};
    return {reinterpret_cast<const DiskNode*>(extra + 1), extra->childCount};
}

template <>
struct std::hash<DiskNode> {
    std::size_t operator()(const DiskNode& node) const;
};
