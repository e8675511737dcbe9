#pragma once

#include "Platform/Clock.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// The user's persisted preferences: typed values by key in one property-list file, rewritten
// whole, atomically, at every change. Reads report the stored type, so a caller can tell
// "missing" from "present but of another type".
//
// Strings are kept byte for byte, also where they are not UTF-8 (file names): they are stored
// with Utf8::escaped().
//
// Another process may write the same file (a second copy started by hand, a settings tool).
// Each write therefore takes an advisory lock beside the file, reads the file again and applies
// this store's own changes on top, so two writers merge keys instead of dropping each other's.
class DefaultsStore {
public:
    using Data = std::vector<std::uint8_t>;
    // A value of a kind the store keeps but doesn't model (a dictionary, a mixed array).
    struct Other {
        bool operator==(const Other&) const = default;
    };
    using Value = std::variant<double, bool, std::int64_t, std::string, std::vector<std::string>, Data,
                               Clock::TimePoint, Other>;

    // Opens the store kept at `path`. A file that was read but can't be parsed is moved aside,
    // never deleted, and the store starts empty. A file that can't be read at all (permissions,
    // too many open files, an I/O error) is left alone: the store starts empty in memory, and
    // each write tries to read it again first and writes nothing while it can't.
    explicit DefaultsStore(std::string path);
    ~DefaultsStore();
    DefaultsStore(const DefaultsStore&) = delete;
    DefaultsStore& operator=(const DefaultsStore&) = delete;

    // $XDG_CONFIG_HOME/mopwell/defaults.plist, with ~/.config when the variable is unset.
    static std::string standardPath();
    // The process-wide store at standardPath(), opened on first use.
    static std::shared_ptr<DefaultsStore> standard();

    const std::string& path() const { return path_; }
    // Where a damaged file was moved, if one was.
    const std::optional<std::string>& setAsidePath() const { return setAsidePath_; }

    bool contains(const std::string& key) const;
    std::optional<Value> object(const std::string& key) const;

    // Typed reads; each is none when the key is missing or holds another type.
    std::optional<double> number(const std::string& key) const;  // a real or an integer
    std::optional<bool> boolean(const std::string& key) const;   // a Boolean
    std::optional<std::string> string(const std::string& key) const;
    std::optional<std::vector<std::string>> stringArray(const std::string& key) const;  // strings only
    std::optional<Data> data(const std::string& key) const;
    std::optional<Clock::TimePoint> date(const std::string& key) const;
    // Lenient: a Boolean, a non-zero number, or a string such as "YES" or "1" reads true.
    bool boolValue(const std::string& key) const;

    void set(const std::string& key, const Value& value);
    void remove(const std::string& key);

    // False when the last write could not replace the file (or did not try, the file being
    // unreadable); the value is still held in memory and goes out with the next write.
    bool lastWriteSucceeded() const;

private:
    enum class Loaded { absent, unreadable, parsed, damaged };

    Loaded loadInto(void*& root);
    void setAside(const std::string& reason);
    // Records the change of `key` (a node, or null for a removal) and writes.
    void change(const std::string& key, void* node);
    void writeLocked();

    std::string path_;
    std::optional<std::string> setAsidePath_;
    mutable std::mutex lock_;
    void* root_ = nullptr;  // the property-list dictionary, owned
    // This store's changes not yet in the file: a value node (owned), or null for a removal.
    std::vector<std::pair<std::string, void*>> pending_;
    bool lastWriteSucceeded_ = true;
};
