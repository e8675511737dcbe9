#include "Services/FileDigest.h"

#include <openssl/evp.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace FileDigest {
namespace {

// The block at each end that ends() compares: one page, what a single small read brings in.
constexpr std::size_t endBlock = 4096;

// Closes the descriptor on every way out; a failure to close is of no interest to a reader.
class ReadOnlyFile {
public:
    // Opened without following a link and without waiting on a pipe swapped in since the walk;
    // anything but a regular file is refused.
    explicit ReadOnlyFile(const std::string& path)
        : descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY))
    {
        struct stat status {};
        if (descriptor_ >= 0 && (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode))) {
            ::close(descriptor_);
            descriptor_ = -1;
        }
        length_ = descriptor_ >= 0 ? static_cast<std::int64_t>(status.st_size) : 0;
    }
    ~ReadOnlyFile()
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }
    ReadOnlyFile(const ReadOnlyFile&) = delete;
    ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    int descriptor() const { return descriptor_; }
    std::int64_t length() const { return length_; }

private:
    int descriptor_;
    std::int64_t length_ = 0;
};

// Reads up to `size` bytes at `offset`, retrying short and interrupted reads; -1 on an error.
ssize_t readAt(int descriptor, unsigned char* buffer, std::size_t size, off_t offset)
{
    std::size_t got = 0;
    while (got < size) {
        const ssize_t step = pread(descriptor, buffer + got, size - got, offset + static_cast<off_t>(got));
        if (step < 0 && errno == EINTR)
            continue;
        if (step < 0)
            return -1;
        if (step == 0)
            break;
        got += static_cast<std::size_t>(step);
    }
    return static_cast<ssize_t>(got);
}

const EVP_MD* sha256Algorithm()
{
    // Fetched once: an implicit fetch on every digest costs a lookup in the provider tables.
    static EVP_MD* const algorithm = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    return algorithm;
}

std::string hexadecimal(const unsigned char* bytes, unsigned int count)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string text(std::size_t(count) * 2, '0');
    for (unsigned int i = 0; i < count; ++i) {
        text[2 * i] = digits[bytes[i] >> 4];
        text[2 * i + 1] = digits[bytes[i] & 0x0f];
    }
    return text;
}

using DigestContext = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;

}  // namespace

std::optional<std::string> sha256(const std::string& path)
{
    const ReadOnlyFile file(path);
    if (!file.isOpen())
        return std::nullopt;
    posix_fadvise(file.descriptor(), 0, 0, POSIX_FADV_SEQUENTIAL);
    DigestContext context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    if (!context || EVP_DigestInit_ex(context.get(), sha256Algorithm(), nullptr) != 1)
        return std::nullopt;
    // One chunk per hashing thread, kept for the thread's life rather than allocated per file.
    thread_local std::vector<unsigned char> chunk(readChunk);
    for (;;) {
        const ssize_t got = ::read(file.descriptor(), chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        EVP_DigestUpdate(context.get(), chunk.data(), static_cast<std::size_t>(got));
    }
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int length = 0;
    if (EVP_DigestFinal_ex(context.get(), digest.data(), &length) != 1)
        return std::nullopt;
    return hexadecimal(digest.data(), length);
}

bool sameContents(const std::string& first, const std::string& second)
{
    const ReadOnlyFile one(first), other(second);
    if (!one.isOpen() || !other.isOpen() || one.length() != other.length())
        return false;
    posix_fadvise(one.descriptor(), 0, 0, POSIX_FADV_SEQUENTIAL);
    posix_fadvise(other.descriptor(), 0, 0, POSIX_FADV_SEQUENTIAL);
    thread_local std::vector<unsigned char> left(readChunk), right(readChunk);
    for (off_t offset = 0;; offset += off_t(readChunk)) {
        const ssize_t got = readAt(one.descriptor(), left.data(), readChunk, offset);
        if (got < 0 || readAt(other.descriptor(), right.data(), readChunk, offset) != got)
            return false;
        if (got == 0)
            return true;
        if (std::memcmp(left.data(), right.data(), std::size_t(got)) != 0)
            return false;
    }
}

std::optional<Ends> ends(const std::string& path)
{
    const ReadOnlyFile file(path);
    if (!file.isOpen())
        return std::nullopt;
    std::array<unsigned char, endBlock> block{};
    const auto fold = [&block](ssize_t count) {
        return std::hash<std::string_view>{}(
            std::string_view(reinterpret_cast<const char*>(block.data()), static_cast<std::size_t>(count)));
    };
    Ends result;
    result.length = file.length();
    const ssize_t head = readAt(file.descriptor(), block.data(), block.size(), 0);
    if (head < 0)
        return std::nullopt;
    result.first = fold(head);
    const off_t tailStart = result.length > std::int64_t(endBlock) ? off_t(result.length - std::int64_t(endBlock)) : 0;
    const ssize_t tail = readAt(file.descriptor(), block.data(), block.size(), tailStart);
    if (tail < 0)
        return std::nullopt;
    result.last = fold(tail);
    return result;
}

}  // namespace FileDigest
