#include "Platform/DefaultsStore.h"

#include "Platform/AtomicFile.h"
#include "Platform/FileLock.h"
#include "Platform/Paths.h"
#include "Platform/PlistDocument.h"
#include "Platform/Utf8.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <plist/plist.h>

namespace {

// Property-list dates count from 2001-01-01 00:00:00 UTC.
constexpr std::chrono::seconds referenceDateOffset{978307200};

plist_t asPlist(void* node) { return static_cast<plist_t>(node); }

// The library cuts a string short at the first byte that is not UTF-8, and file names need not
// be: strings go through the one escape for names, so a folder stored is the folder read back.
std::string stringOf(plist_t node)
{
    return Utf8::unescaped(PlistDocument::stringOf(node).value_or(""));
}

plist_t stringNode(const std::string& value)
{
    // The plist library takes C strings, so a NUL inside a value is written as the escape's
    // "\x00", which reads back as the NUL.
    std::string text;
    for (const char c : Utf8::escaped(value)) {
        if (c == '\0')
            text += "\\x00";
        else
            text += c;
    }
    return plist_new_string(text.c_str());
}

std::optional<std::vector<std::string>> stringsOf(plist_t array)
{
    std::vector<std::string> values;
    const uint32_t count = plist_array_get_size(array);
    for (uint32_t i = 0; i < count; ++i) {
        plist_t item = plist_array_get_item(array, i);
        if (plist_get_node_type(item) != PLIST_STRING)
            return std::nullopt;
        values.push_back(stringOf(item));
    }
    return values;
}

Clock::TimePoint dateOf(plist_t node)
{
    int32_t seconds = 0;
    int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    return Clock::TimePoint{} + referenceDateOffset + std::chrono::seconds{seconds} +
           std::chrono::microseconds{microseconds};
}

plist_t dateNode(Clock::TimePoint time)
{
    using namespace std::chrono;
    const auto sinceReference = duration_cast<microseconds>(time.time_since_epoch()) - referenceDateOffset;
    auto seconds = duration_cast<std::chrono::seconds>(sinceReference);
    auto micro = sinceReference - seconds;
    if (micro.count() < 0) {
        seconds -= std::chrono::seconds{1};
        micro += std::chrono::seconds{1};
    }
    return plist_new_date(static_cast<int32_t>(seconds.count()), static_cast<int32_t>(micro.count()));
}

DefaultsStore::Value valueOf(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return static_cast<std::int64_t>(value);
    }
    case PLIST_STRING:
        return stringOf(node);
    case PLIST_ARRAY:
        if (auto strings = stringsOf(node))
            return *strings;
        return DefaultsStore::Other{};
    case PLIST_DATA: {
        char* bytes = nullptr;
        uint64_t length = 0;
        plist_get_data_val(node, &bytes, &length);
        DefaultsStore::Data data(bytes, bytes + length);
        std::free(bytes);
        return data;
    }
    case PLIST_DATE:
        return dateOf(node);
    default:
        return DefaultsStore::Other{};
    }
}

struct NodeMaker {
    plist_t operator()(double value) const { return plist_new_real(value); }
    plist_t operator()(bool value) const { return plist_new_bool(value ? 1 : 0); }
    plist_t operator()(std::int64_t value) const { return plist_new_uint(static_cast<uint64_t>(value)); }
    plist_t operator()(const std::string& value) const { return stringNode(value); }
    plist_t operator()(const std::vector<std::string>& values) const
    {
        plist_t array = plist_new_array();
        for (const auto& value : values)
            plist_array_append_item(array, stringNode(value));
        return array;
    }
    plist_t operator()(const DefaultsStore::Data& data) const
    {
        return plist_new_data(reinterpret_cast<const char*>(data.data()), data.size());
    }
    plist_t operator()(Clock::TimePoint time) const { return dateNode(time); }
    // There is nothing to write for a value the store only knows by its presence.
    plist_t operator()(const DefaultsStore::Other&) const { return nullptr; }
};

// NSString's boolValue: leading white space and zeros skipped, then Y, y, T, t or a digit 1–9.
bool leadingTruth(const std::string& text)
{
    std::size_t i = 0;
    while (i < text.size() && std::isspace(static_cast<unsigned char>(text[i])))
        ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    while (i < text.size() && text[i] == '0')
        ++i;
    if (i >= text.size())
        return false;
    const char c = text[i];
    return c == 'Y' || c == 'y' || c == 'T' || c == 't' || (c >= '1' && c <= '9');
}

std::string timestamp()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y%m%dT%H%M%SZ", &parts);
    return text;
}

}  // namespace

DefaultsStore::DefaultsStore(std::string path) : path_(std::move(path))
{
    if (loadInto(root_) != Loaded::parsed)
        root_ = plist_new_dict();
}

DefaultsStore::~DefaultsStore()
{
    for (auto& [key, node] : pending_)
        plist_free(asPlist(node));
    plist_free(asPlist(root_));
}

std::string DefaultsStore::standardPath()
{
    const char* configHome = std::getenv("XDG_CONFIG_HOME");
    const std::string base = configHome && *configHome == '/' ? configHome : Paths::home() + "/.config";
    return base + "/mopwell/defaults.plist";
}

std::shared_ptr<DefaultsStore> DefaultsStore::standard()
{
    static const std::shared_ptr<DefaultsStore> store = std::make_shared<DefaultsStore>(standardPath());
    return store;
}

DefaultsStore::Loaded DefaultsStore::loadInto(void*& root)
{
    const auto file = AtomicFile::read(path_);
    if (!file.exists)
        return Loaded::absent;
    if (!file.readable)
        return Loaded::unreadable;  // says nothing about the file itself: leave it be
    plist_t parsed = nullptr;
    if (!file.contents.empty())
        plist_from_memory(file.contents.data(), static_cast<uint32_t>(file.contents.size()), &parsed);
    if (parsed && plist_get_node_type(parsed) == PLIST_DICT) {
        root = parsed;
        return Loaded::parsed;
    }
    plist_free(parsed);
    setAside("damaged");
    return Loaded::damaged;
}

void DefaultsStore::setAside(const std::string& reason)
{
    // Keep the user's file for inspection: a preferences file is never worth deleting.
    const std::string aside = path_ + "." + reason + "-" + timestamp();
    if (std::rename(path_.c_str(), aside.c_str()) == 0)
        setAsidePath_ = aside;
}

bool DefaultsStore::contains(const std::string& key) const
{
    std::lock_guard guard(lock_);
    return plist_dict_get_item(asPlist(root_), key.c_str()) != nullptr;
}

std::optional<DefaultsStore::Value> DefaultsStore::object(const std::string& key) const
{
    std::lock_guard guard(lock_);
    plist_t node = plist_dict_get_item(asPlist(root_), key.c_str());
    if (!node)
        return std::nullopt;
    return valueOf(node);
}

std::optional<double> DefaultsStore::number(const std::string& key) const
{
    const auto value = object(key);
    if (!value)
        return std::nullopt;
    if (const auto* real = std::get_if<double>(&*value))
        return *real;
    if (const auto* integer = std::get_if<std::int64_t>(&*value))
        return static_cast<double>(*integer);
    return std::nullopt;
}

std::optional<bool> DefaultsStore::boolean(const std::string& key) const
{
    const auto value = object(key);
    if (const auto* flag = value ? std::get_if<bool>(&*value) : nullptr)
        return *flag;
    return std::nullopt;
}

std::optional<std::string> DefaultsStore::string(const std::string& key) const
{
    const auto value = object(key);
    if (const auto* text = value ? std::get_if<std::string>(&*value) : nullptr)
        return *text;
    return std::nullopt;
}

std::optional<std::vector<std::string>> DefaultsStore::stringArray(const std::string& key) const
{
    const auto value = object(key);
    if (const auto* strings = value ? std::get_if<std::vector<std::string>>(&*value) : nullptr)
        return *strings;
    return std::nullopt;
}

std::optional<DefaultsStore::Data> DefaultsStore::data(const std::string& key) const
{
    const auto value = object(key);
    if (const auto* bytes = value ? std::get_if<Data>(&*value) : nullptr)
        return *bytes;
    return std::nullopt;
}

std::optional<Clock::TimePoint> DefaultsStore::date(const std::string& key) const
{
    const auto value = object(key);
    if (const auto* time = value ? std::get_if<Clock::TimePoint>(&*value) : nullptr)
        return *time;
    return std::nullopt;
}

bool DefaultsStore::boolValue(const std::string& key) const
{
    const auto value = object(key);
    if (!value)
        return false;
    if (const auto* flag = std::get_if<bool>(&*value))
        return *flag;
    if (const auto* integer = std::get_if<std::int64_t>(&*value))
        return *integer != 0;
    if (const auto* real = std::get_if<double>(&*value))
        return *real != 0.0;
    if (const auto* text = std::get_if<std::string>(&*value))
        return leadingTruth(*text);
    return false;
}

void DefaultsStore::set(const std::string& key, const Value& value)
{
    plist_t node = std::visit(NodeMaker{}, value);
    if (!node)
        return;
    std::lock_guard guard(lock_);
    change(key, node);
}

void DefaultsStore::remove(const std::string& key)
{
    std::lock_guard guard(lock_);
    if (!plist_dict_get_item(asPlist(root_), key.c_str()))
        return;
    change(key, nullptr);
}

bool DefaultsStore::lastWriteSucceeded() const
{
    std::lock_guard guard(lock_);
    return lastWriteSucceeded_;
}

void DefaultsStore::change(const std::string& key, void* node)
{
    if (node)
        plist_dict_set_item(asPlist(root_), key.c_str(), plist_copy(asPlist(node)));
    else
        plist_dict_remove_item(asPlist(root_), key.c_str());
    // Only the latest change of a key is replayed.
    std::erase_if(pending_, [&](const auto& entry) {
        if (entry.first != key)
            return false;
        plist_free(asPlist(entry.second));
        return true;
    });
    pending_.emplace_back(key, node);
    writeLocked();
}

void DefaultsStore::writeLocked()
{
    // Held until the new file is in place, so no other writer reads between our read and rename.
    const FileLock fileLock(path_ + ".lock");
    void* fresh = nullptr;
    const Loaded loaded = loadInto(fresh);
    if (loaded == Loaded::unreadable) {
        lastWriteSucceeded_ = false;  // never replace what we could not read
        return;
    }
    if (loaded == Loaded::parsed) {
        // The file as it is now, with this store's changes on top of it.
        for (const auto& [key, node] : pending_) {
            if (node)
                plist_dict_set_item(asPlist(fresh), key.c_str(), plist_copy(asPlist(node)));
            else
                plist_dict_remove_item(asPlist(fresh), key.c_str());
        }
        plist_free(asPlist(root_));
        root_ = fresh;
    }
    // Binary, not XML: this library's XML dates drop the fraction of a second, and schedules
    // compare stored dates with the clock.
    char* bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(asPlist(root_), &bytes, &length);
    lastWriteSucceeded_ = bytes && AtomicFile::replace(path_, std::string_view(bytes, length));
    plist_to_bin_free(bytes);
    if (lastWriteSucceeded_) {
        for (auto& [key, node] : pending_)
            plist_free(asPlist(node));
        pending_.clear();
    }
}
