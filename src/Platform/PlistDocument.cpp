#include "Platform/PlistDocument.h"

#include <cstdint>
#include <cstring>
#include <limits>

PlistDocument PlistDocument::parse(std::string_view bytes)
{
    PlistDocument document;
    if (bytes.empty() || bytes.size() > std::numeric_limits<uint32_t>::max())
        return document;
    plist_t root = nullptr;
    plist_from_memory(bytes.data(), static_cast<uint32_t>(bytes.size()), &root);
    document.root_.reset(root);
    if (root && plist_get_node_type(root) != PLIST_DICT)
        document.root_.reset();
    return document;
}

plist_t PlistDocument::item(const char* key) const
{
    return root_ ? plist_dict_get_item(root_.get(), key) : nullptr;
}

std::optional<std::string> PlistDocument::string(const char* key) const
{
    return stringOf(item(key));
}

std::optional<std::string> PlistDocument::stringOf(plist_t node)
{
    // By pointer: the copying getter asserts that the text holds no NUL, and a hostile file may
    // well hold one. The stated length can then run past the text the parser kept, so the value
    // ends at the first NUL.
    std::uint64_t length = 0;
    const char* text = node ? plist_get_string_ptr(node, &length) : nullptr;
    if (!text)
        return std::nullopt;
    return std::string(text, strnlen(text, length));
}
