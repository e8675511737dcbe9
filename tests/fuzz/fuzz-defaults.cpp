// The defaults file: whatever bytes lie at its path, opening the store and reading every key of
// every type neither crashes nor reports a sanitizer error, and a write leaves a file that reads
// back with the value written.

#include "Platform/DefaultsStore.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {

std::string scratchFile()
{
    static const std::string path = [] {
        char folder[] = "/tmp/mopwell-fuzz-defaults.XXXXXX";
        if (!mkdtemp(folder))
            std::abort();
        return std::string(folder) + "/defaults.plist";
    }();
    return path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string path = scratchFile();
    if (FILE* file = std::fopen(path.c_str(), "wb")) {
        std::fwrite(data, 1, size, file);
        std::fclose(file);
    }
    {
        DefaultsStore store(path);
        for (const char* key : {"refreshInterval", "customFolders", "cleanHistory", "lastAutoCleanup",
                                "developerMode", "cleanupSchedule", "totalFreedAllTime"}) {
            (void)store.object(key);
            (void)store.number(key);
            (void)store.boolean(key);
            (void)store.boolValue(key);
            (void)store.string(key);
            (void)store.stringArray(key);
            (void)store.data(key);
            (void)store.date(key);
        }
        store.set("fuzzed", std::string(reinterpret_cast<const char*>(data), size));
        if (store.lastWriteSucceeded() && DefaultsStore(path).string("fuzzed") != std::string(reinterpret_cast<const char*>(data), size))
            std::abort();  // a stored string must come back byte for byte
    }
    if (auto aside = DefaultsStore(path).setAsidePath())
        std::remove(aside->c_str());
    std::remove(path.c_str());
    return 0;
}
