#pragma once

#include <string>

// Makes the listing of one folder fail after its first read, as a damaged disk or a network
// folder that drops away does: the first read of the folder gives its entries, the next fails
// with EIO where it would have said "no more". No file system here fails on demand, so while an
// object of this class lives, this test program's own getdents64 (the call the directory walker
// lists folders with) does it; every other folder is read by the kernel as usual.
class FailingFolderReads {
public:
    explicit FailingFolderReads(const std::string& folder);
    ~FailingFolderReads();
    FailingFolderReads(const FailingFolderReads&) = delete;
    FailingFolderReads& operator=(const FailingFolderReads&) = delete;
};
