#pragma once

// Platform-internal: a folder's entries read straight from the kernel's records into one reused
// buffer, with no directory stream to allocate and no duplicate descriptor to give it.

#include <cstdint>
#include <dirent.h>
#include <vector>

// Calls `each(name)` for every entry of the folder open at `descriptor` but "." and "..", and sets
// `self` to the inode number "." is listed with (0 if it isn't). A read that fails ends the
// listing with what was read, and false.
template <typename Each>
bool forEachListed(int descriptor, std::vector<std::uint64_t>& buffer, std::uint64_t& self, Each&& each)
{
    self = 0;
    const auto bytes = reinterpret_cast<char*>(buffer.data());
    for (;;) {
        const ssize_t got = getdents64(descriptor, bytes, buffer.size() * sizeof(std::uint64_t));
        if (got <= 0)
            return got == 0;
        for (ssize_t at = 0; at < got;) {
            const auto* entry = reinterpret_cast<const struct dirent64*>(bytes + at);
            at += entry->d_reclen;
            const char* name = entry->d_name;
            if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'))) {
                if (name[1] == '\0')
                    self = entry->d_ino;
                continue;
            }
            each(name);
        }
    }
}
