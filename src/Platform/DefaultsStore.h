#pragma once

#include "Platform/Clock.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// The user's persisted preferences: typed values by key in one property-list file, read once and
// rewritten whole, atomically, at every change. Reads report the stored type, so a caller can
// tell "missing" from "present but of another type".
class DefaultsStore {
public:
    using Data = std::vector<std::uint8_t>;
    // A value of a kind the store keeps but doesn't model (a dictionary, a mixed array).
    struct Other {
        bool operator==(const Other&) const = default;
    };
    using Value = std::variant<double, bool, std::int64_t, std::string, std::vector<std::string>, Data,
                               Clock::TimePoint, Other>;

    // Opens the store kept at `path`. A file that can't be read or parsed is moved aside, never
    // deleted, and the store starts empty.
    explicit DefaultsStore(std::string path);
    ~DefaultsStore();
    DefaultsStore(const DefaultsStore&) = delete;
    DefaultsStore& operator=(const DefaultsStore&) = delete;

    // $XDG_CONFIG_HOME/mopwell/defaults.plist, with ~/.config when the variable is unset.
    static std::string standardPath();
    // The process-wide store at standardPath(), opened on first use.
    static std::shared_ptr<DefaultsStore> standard();

    const std::string& path() const { return path_; }
    // Where a damaged file found at opening was moved, if one was.
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

    // False when the last write could not replace the file; the value is still held in memory.
    bool lastWriteSucceeded() const;

private:
    void load();
    void setAside(const std::string& reason);
    void writeLocked();

    std::string path_;
    std::optional<std::string> setAsidePath_;
    mutable std::mutex lock_;
    void* root_ = nullptr;  // the property-list dictionary, owned
    bool lastWriteSucceeded_ = true;
};
