#pragma once

#include <string>

// An advisory lock (flock) on a lock file, held for the object's lifetime and released by the
// kernel should the process die. Blocks until the lock is free. Processes that write one file
// take the lock of the same lock file around each read-modify-write.
class FileLock {
public:
    // Creates the lock file and its folder when missing. Where it can't be created (a read-only
    // folder) the lock is not held and the caller goes on unguarded: a write there fails anyway.
    explicit FileLock(const std::string& lockPath);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    bool held() const { return descriptor_ >= 0; }

private:
    int descriptor_ = -1;
};
