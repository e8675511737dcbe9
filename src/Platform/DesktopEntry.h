#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A desktop entry file as the freedesktop.org Desktop Entry Specification 1.5 lays it out:
// menu entries under applications/ and autostart entries alike. Only the [Desktop Entry] group
// is kept; the groups of actions and anything before the first group are skipped. Parsing never
// fails and never throws: a line it can't read is passed over, so any bytes give some entry.
class DesktopEntry {
public:
    // Files larger than this are not desktop entries anyone wrote by hand or by tool.
    static constexpr std::size_t maxFileSize = 1 << 20;

    static DesktopEntry parse(std::string_view text);
    // None when the file can't be read, isn't a regular file or is larger than maxFileSize.
    static std::optional<DesktopEntry> read(const std::string& path);

    // A [Desktop Entry] group was found.
    bool hasMainGroup() const { return hasMainGroup_; }

    // The raw value of `key` exactly as written after "=" (a localised key is asked for by its
    // full name, "Name[de]"); the first of duplicates wins.
    std::optional<std::string_view> raw(std::string_view key) const;
    // The value with the escapes \s \n \t \r \\ resolved.
    std::optional<std::string> string(std::string_view key) const;
    // "true" or "false"; anything else is none.
    std::optional<bool> boolean(std::string_view key) const;
    // A ";"-separated list, "\;" standing for a semicolon inside an item; empty items dropped.
    std::vector<std::string> strings(std::string_view key) const;
    // The Exec key split into the program and its arguments (see splitExec).
    std::vector<std::string> execArguments() const;

    // Splits an already unescaped Exec value at unquoted spaces; inside double quotes \" \` \$
    // and \\ stand for the character itself. Field codes such as "%U" are kept as arguments and
    // "%%" is kept as written; an unterminated quote runs to the end.
    static std::vector<std::string> splitExec(std::string_view command);
    // Resolves the string escapes of a value.
    static std::string unescape(std::string_view value);

    const std::vector<std::pair<std::string, std::string>>& entries() const { return entries_; }

private:
    bool hasMainGroup_ = false;
    std::vector<std::pair<std::string, std::string>> entries_;
};
