#include "Models/DiskNode.h"

#include "Models/NodeSlabs.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <utility>

// A top path holds its whole text; any other holds its last name and a reference to its folder's.
struct DiskNode::Path::Text {
    std::atomic<std::uint32_t> references{1};
    std::uint32_t length = 0;  // of the bytes held here
    Text* parent = nullptr;
    const char* bytes() const { return reinterpret_cast<const char*>(this + 1); }
};

namespace {

using Flag = DiskNode::Record::Flag;
constexpr auto directoryFlag = Flag::directoryFlag;
constexpr auto syntheticFlag = Flag::syntheticFlag;
constexpr auto modifiedFlag = Flag::modifiedFlag;
constexpr auto separateNameFlag = Flag::separateNameFlag;
constexpr auto wholeIdFlag = Flag::wholeIdFlag;
constexpr auto ownMemoryFlag = Flag::ownMemoryFlag;
constexpr auto extraFlag = Flag::extraFlag;
constexpr auto syntheticNameFlag = Flag::syntheticNameFlag;

// File names are at most 255 bytes; longer text only reaches a record through the general
// constructor, which moves it into the prefix instead.
constexpr std::size_t maxInlineText = 0xffff;

// Copies `from` to `to` and returns the end of the copy. An empty view may have no data at all,
// and memcpy from a null pointer is undefined even for zero bytes.
char* copied(std::string_view from, char* to)
{
    if (!from.empty())
        std::memcpy(to, from.data(), from.size());
    return to + from.size();
}

}  // namespace

namespace {

// Texts come from the records' slabs too, unless too long for one.
bool fitsSlab(std::size_t textLength)
{
    return sizeof(DiskNode::Path::Text) + textLength <= NodeSlabs::largestCut;
}

DiskNode::Path::Text* madeText(std::string_view bytes)
{
    const std::size_t size = sizeof(DiskNode::Path::Text) + bytes.size();
    void* memory = fitsSlab(bytes.size()) ? NodeSlabs::take(size) : ::operator new(size);
    auto* text = new (memory) DiskNode::Path::Text;
    text->length = static_cast<std::uint32_t>(bytes.size());
    copied(bytes, reinterpret_cast<char*>(text + 1));
    return text;
}

// Drops a reference, and with the last one the text and every folder's it held the last
// reference to, without recursion however deep the path.
void released(DiskNode::Path::Text* text)
{
    while (text && text->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        DiskNode::Path::Text* parent = text->parent;
        const bool slab = fitsSlab(text->length);
        text->~Text();
        if (slab)
            NodeSlabs::give(text);
        else
            ::operator delete(text);
        text = parent;
    }
}

}  // namespace

DiskNode::Path::Path(std::string_view text) : text_(madeText(text)) {}

DiskNode::Path::Path(const Path& folder, std::string_view name)
{
    if (!folder) {
        text_ = madeText("/" + std::string(name));
        return;
    }
    text_ = madeText(name);
    text_->parent = folder.text_;
    text_->parent->references.fetch_add(1, std::memory_order_relaxed);
}

DiskNode::Path::Path(const Path& other) : text_(other.text_)
{
    if (text_)
        text_->references.fetch_add(1, std::memory_order_relaxed);
}

DiskNode::Path& DiskNode::Path::operator=(const Path& other)
{
    Path copy(other);
    std::swap(text_, copy.text_);
    return *this;
}

DiskNode::Path::~Path()
{
    released(text_);
}

std::size_t DiskNode::Path::length() const
{
    std::size_t length = 0;
    for (const Text* part = text_; part; part = part->parent)
        length += part->length + (part->parent ? 1 : 0);
    return length;
}

// Written from the end back, so the parts are met in the order they are linked.
void DiskNode::Path::appendTo(std::string& text) const
{
    const std::size_t start = text.size();
    text.resize(start + length());
    char* end = text.data() + text.size();
    for (const Text* part = text_; part; part = part->parent) {
        end -= part->length;
        copied({part->bytes(), part->length}, end);
        if (part->parent)
            *--end = '/';
    }
}

std::string DiskNode::Path::text() const
{
    std::string text;
    appendTo(text);
    return text;
}

std::string_view DiskNode::Path::lastPart() const
{
    return text_ ? std::string_view(text_->bytes(), text_->length) : std::string_view();
}

namespace {

using Extra = DiskNode::Record::Extra;

// Valid for a record with an Extra only.
DiskNode* childSlots(DiskNode::Record* record)
{
    return reinterpret_cast<DiskNode*>(reinterpret_cast<Extra*>(record + 1) + 1);
}

std::uint32_t childCountOf(const DiskNode::Record* record)
{
    const Extra* extra = record->extra();
    return extra ? extra->childCount : 0;
}

const char* textOf(const DiskNode::Record* record)
{
    const Extra* extra = record->extra();
    if (!extra)
        return reinterpret_cast<const char*>(record + 1);
    return reinterpret_cast<const char*>(extra + 1) + extra->childCount * sizeof(DiskNode);
}

}  // namespace

DiskNode DiskNode::allocate(const Path& prefix, std::string_view tail, std::string_view separateName,
                            std::int64_t size, std::uint8_t flags, FileCategory category,
                            std::optional<Clock::TimePoint> modified, std::size_t childCount)
{
    tail = tail.substr(0, maxInlineText);
    separateName = separateName.substr(0, maxInlineText);
    const bool extra = childCount > 0 || (flags & separateNameFlag);
    const std::size_t bytes = sizeof(Record) + (extra ? sizeof(Extra) + childCount * sizeof(DiskNode) : 0) +
                              tail.size() + separateName.size();
    const bool ownMemory = bytes > NodeSlabs::largestCut;
    auto* record = new (ownMemory ? ::operator new(bytes) : NodeSlabs::take(bytes)) Record;
    record->tailLength = static_cast<std::uint16_t>(tail.size());
    record->category = static_cast<std::uint8_t>(category);
    record->flags = (flags & ~(modifiedFlag | ownMemoryFlag | extraFlag)) | (ownMemory ? ownMemoryFlag : 0) |
                    (extra ? extraFlag : 0);
    record->size = size;
    if (modified) {
        record->flags |= modifiedFlag;
        record->modified = modified->time_since_epoch().count();
    }
    record->prefix = prefix;
    char* text = reinterpret_cast<char*>(record + 1);
    if (extra) {
        new (record + 1) Extra{static_cast<std::uint32_t>(childCount), static_cast<std::uint16_t>(separateName.size())};
        DiskNode* slots = childSlots(record);
        for (std::size_t i = 0; i < childCount; ++i)
            new (slots + i) DiskNode;
        text = reinterpret_cast<char*>(slots + childCount);
    }
    copied(separateName, copied(tail, text));
    return DiskNode(record);
}

DiskNode::DiskNode(std::string_view id, std::string_view name, std::int64_t size, bool isDirectory,
                   FileCategory category, std::optional<Clock::TimePoint> modified, bool isSynthetic,
                   std::vector<DiskNode> children)
{
    std::uint8_t flags = (isDirectory ? directoryFlag : 0) | (isSynthetic ? syntheticFlag : 0);
    const bool joined = !name.empty() && name.size() <= maxInlineText && id.size() > name.size() &&
                        id.ends_with(name) && id[id.size() - name.size() - 1] == '/';
    DiskNode made;
    if (joined) {
        made = allocate(Path(id.substr(0, id.size() - name.size() - 1)), name, {}, size, flags, category,
                        modified, children.size());
    } else if (id == name && id.size() <= maxInlineText) {
        made = allocate(Path(), id, {}, size, flags, category, modified, children.size());
    } else {
        flags |= wholeIdFlag | separateNameFlag;
        made = allocate(Path(id), {}, name, size, flags, category, modified, children.size());
    }
    if (!children.empty())
        std::move(children.begin(), children.end(), childSlots(made.data_));
    *this = std::move(made);
}

DiskNode DiskNode::makeEntry(const Path& folder, std::string_view name, std::int64_t size, bool isDirectory,
                             FileCategory category, std::optional<Clock::TimePoint> modified,
                             std::span<DiskNode> children)
{
    // Files, most of any tree, take the short way: no Extra, the name as the tail, from a slab.
    if (children.empty() && sizeof(Record) + name.size() <= NodeSlabs::largestCut) {
        auto* record = new (NodeSlabs::take(sizeof(Record) + name.size())) Record;
        record->tailLength = static_cast<std::uint16_t>(name.size());
        record->category = static_cast<std::uint8_t>(category);
        record->flags = (isDirectory ? directoryFlag : 0) | (modified ? modifiedFlag : 0);
        record->size = size;
        record->modified = modified ? modified->time_since_epoch().count() : 0;
        record->prefix = folder;
        copied(name, reinterpret_cast<char*>(record + 1));
        return DiskNode(record);
    }
    DiskNode made = allocate(folder, name, {}, size, isDirectory ? directoryFlag : 0, category, modified,
                             children.size());
    if (!children.empty())
        std::move(children.begin(), children.end(), childSlots(made.data_));
    return made;
}

DiskNode DiskNode::makeSynthetic(const Path& folder, std::string_view largestName, std::int64_t size,
                                 std::span<DiskNode> children)
{
    // The id's tail is put together on the stack: a name is at most 255 bytes on every file
    // system the walk reads, so the heap is only for names that came from elsewhere.
    constexpr std::string_view suffix = "#other";
    std::array<char, 512> local;
    std::string longer;
    std::string_view tail;
    if (largestName.size() + suffix.size() <= local.size()) {
        copied(suffix, copied(largestName, local.data()));
        tail = {local.data(), largestName.size() + suffix.size()};
    } else {
        longer.append(largestName).append(suffix);
        tail = longer;
    }
    DiskNode made = allocate(folder, tail, {}, size, directoryFlag | syntheticFlag | syntheticNameFlag,
                             FileCategory::other, std::nullopt, children.size());
    if (!children.empty())
        std::move(children.begin(), children.end(), childSlots(made.data_));
    return made;
}

DiskNode::DiskNode(const DiskNode& other) noexcept : data_(other.data_)
{
    if (data_)
        data_->references.fetch_add(1, std::memory_order_relaxed);
}

DiskNode& DiskNode::operator=(const DiskNode& other) noexcept
{
    DiskNode copy(other);
    std::swap(data_, copy.data_);
    return *this;
}

DiskNode& DiskNode::operator=(DiskNode&& other) noexcept
{
    std::swap(data_, other.data_);
    return *this;
}

DiskNode::~DiskNode()
{
    release(data_);
}

// Frees a record and every child record it held the last reference to, with a work list
// instead of recursion, so a tree of any depth is freed without exhausting the stack.
void DiskNode::release(Record* data)
{
    if (!data || data->references.fetch_sub(1, std::memory_order_acq_rel) != 1)
        return;
    std::vector<Record*> pending{data};
    while (!pending.empty()) {
        Record* record = pending.back();
        pending.pop_back();
        const std::uint32_t childCount = childCountOf(record);
        DiskNode* slots = childCount ? childSlots(record) : nullptr;
        for (std::uint32_t i = 0; i < childCount; ++i) {
            Record* child = std::exchange(slots[i].data_, nullptr);
            if (child && child->references.fetch_sub(1, std::memory_order_acq_rel) == 1)
                pending.push_back(child);
        }
        const bool ownMemory = record->flags & ownMemoryFlag;
        record->~Record();
        if (ownMemory)
            ::operator delete(record);
        else
            NodeSlabs::give(record);
    }
}

std::string DiskNode::id() const
{
    if (!data_)
        return {};
    if (data_->flags & wholeIdFlag)
        return data_->prefix.text();
    const std::string_view tail(textOf(data_), data_->tailLength);
    if (!data_->prefix)
        return std::string(tail);
    std::string id;
    id.reserve(data_->prefix.length() + 1 + tail.size());
    data_->prefix.appendTo(id);
    id.append(1, '/').append(tail);
    return id;
}

std::string_view DiskNode::name() const
{
    if (!data_)
        return {};
    if (data_->flags & syntheticNameFlag)
        return syntheticName;
    if (data_->flags & separateNameFlag)
        return {textOf(data_) + data_->tailLength, data_->extra()->nameLength};
    return {textOf(data_), data_->tailLength};
}

std::optional<Clock::TimePoint> DiskNode::modified() const
{
    if (!data_ || !(data_->flags & modifiedFlag))
        return std::nullopt;
    return Clock::TimePoint(Clock::TimePoint::duration(data_->modified));
}

DiskNode DiskNode::rebuilt(std::vector<DiskNode> children) const
{
    DiskNode made;
    if (!data_) {
        made = allocate(Path(), {}, {}, 0, 0, FileCategory::other, std::nullopt, children.size());
    } else {
        const char* text = textOf(data_);
        const std::uint8_t flags = data_->flags;
        made = allocate(data_->prefix, {text, data_->tailLength},
                        (flags & separateNameFlag) ? std::string_view(text + data_->tailLength, data_->extra()->nameLength)
                                                   : std::string_view(),
                        data_->size, flags, category(), modified(), children.size());
    }
    if (!children.empty())
        std::move(children.begin(), children.end(), childSlots(made.data_));
    return made;
}

void DiskNode::setCategory(FileCategory category)
{
    if (!data_ || data_->references.load(std::memory_order_acquire) != 1)
        *this = rebuilt({children().begin(), children().end()});
    data_->category = static_cast<std::uint8_t>(category);
}

void DiskNode::setModified(std::optional<Clock::TimePoint> modified)
{
    if (!data_ || data_->references.load(std::memory_order_acquire) != 1)
        *this = rebuilt({children().begin(), children().end()});
    data_->flags = modified ? (data_->flags | modifiedFlag) : (data_->flags & ~modifiedFlag);
    data_->modified = modified ? modified->time_since_epoch().count() : 0;
}

void DiskNode::setSynthetic(bool isSynthetic)
{
    if (!data_ || data_->references.load(std::memory_order_acquire) != 1)
        *this = rebuilt({children().begin(), children().end()});
    data_->flags = isSynthetic ? (data_->flags | syntheticFlag) : (data_->flags & ~syntheticFlag);
}

void DiskNode::setChildren(std::vector<DiskNode> children)
{
    *this = rebuilt(std::move(children));
}

std::int64_t DiskNode::itemCount() const
{
    std::int64_t count = 0;
    std::vector<const DiskNode*> pending{this};
    while (!pending.empty()) {
        const DiskNode* node = pending.back();
        pending.pop_back();
        count += node->isSynthetic() ? 0 : 1;
        for (const DiskNode& child : node->children())
            pending.push_back(&child);
    }
    return count;
}

bool DiskNode::operator==(const DiskNode& other) const
{
    std::vector<std::pair<const DiskNode*, const DiskNode*>> pending{{this, &other}};
    while (!pending.empty()) {
        const auto [a, b] = pending.back();
        pending.pop_back();
        if (a->sharesRecordWith(*b))
            continue;
        if (a->size() != b->size() || a->isDirectory() != b->isDirectory() || a->category() != b->category() ||
            a->isSynthetic() != b->isSynthetic() || a->modified() != b->modified() || a->name() != b->name() ||
            a->id() != b->id())
            return false;
        const auto left = a->children();
        const auto right = b->children();
        if (left.size() != right.size())
            return false;
        for (std::size_t i = 0; i < left.size(); ++i)
            pending.emplace_back(&left[i], &right[i]);
    }
    return true;
}

std::size_t std::hash<DiskNode>::operator()(const DiskNode& node) const
{
    std::size_t seed = 0;
    const auto mix = [&seed](std::size_t value) { seed ^= value + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2); };
    std::vector<const DiskNode*> pending{&node};
    while (!pending.empty()) {
        const DiskNode* current = pending.back();
        pending.pop_back();
        mix(std::hash<std::string>{}(current->id()));
        mix(std::hash<std::string_view>{}(current->name()));
        mix(static_cast<std::size_t>(current->size()));
        mix(static_cast<std::size_t>(current->category()) * 4 + (current->isDirectory() ? 2 : 0) +
            (current->isSynthetic() ? 1 : 0));
        const auto modified = current->modified();
        mix(modified ? static_cast<std::size_t>(modified->time_since_epoch().count()) : 0x5bd1e995);
        const auto children = current->children();
        mix(children.size());
        for (const DiskNode& child : children)
            pending.push_back(&child);
    }
    return seed;
}
