#pragma once

#include <plist/plist.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

// A property list read from bytes (XML or binary) whose top is a dictionary, owned and freed
// with it. Reads only the string values the callers need; anything of another type reads as
// absent, so a damaged or hostile file never gets further than "no value".
class PlistDocument {
public:
    // Empty when the bytes are no property list or its top is not a dictionary.
    static PlistDocument parse(std::string_view bytes);

    bool isDictionary() const { return root_ != nullptr; }
    std::optional<std::string> string(const char* key) const;
    plist_t item(const char* key) const;

    // The text of a string node; absent for a node of any other type.
    static std::optional<std::string> stringOf(plist_t node);

private:
    std::unique_ptr<std::remove_pointer_t<plist_t>, decltype(&plist_free)> root_{nullptr, &plist_free};
};
