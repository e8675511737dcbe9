#include "Models/FileCategory.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <string>

namespace FileCategories {
namespace {

// Names come from the disk, so only the ASCII letters of an extension are folded: every known
// extension is plain ASCII.
constexpr char lowercase(char c)
{
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string lowercased(std::string_view text)
{
    std::string result(text);
    for (char& c : result)
        c = lowercase(c);
    return result;
}

// The text after the last dot of the last component, as spelled.
std::string_view pathExtension(std::string_view name)
{
    while (name.size() > 1 && name.back() == '/')
        name.remove_suffix(1);
    const auto slash = name.rfind('/');
    const std::string_view component = slash == std::string_view::npos ? name : name.substr(slash + 1);
    const auto dot = component.rfind('.');
    // A leading dot marks a hidden name, not an extension.
    if (dot == std::string_view::npos || dot == 0)
        return {};
    return component.substr(dot + 1);
}

bool isAmong(const std::string& extension, std::initializer_list<std::string_view> list)
{
    return std::find(list.begin(), list.end(), extension) != list.end();
}

// The disk map asks for the category of every file it meets, so files are looked up by number:
// an extension of up to eight bytes, lowercased, packs into one integer (its first byte highest),
// and the known ones sit in an open-addressed table built at compile time. 0 stands for an empty
// or longer extension, which no known one is.
constexpr std::size_t longestExtension = sizeof(std::uint64_t);

constexpr std::uint64_t packedExtension(std::string_view extension)
{
    if (extension.empty() || extension.size() > longestExtension)
        return 0;
    std::uint64_t key = 0;
    for (char c : extension)
        key = (key << 8) | static_cast<unsigned char>(lowercase(c));
    return key;
}

constexpr std::string_view videoExtensions[] = {"mov", "mp4", "m4v", "avi", "mkv", "webm",
                                                "wmv", "flv", "mpg", "mpeg", "m2ts"};
constexpr std::string_view imageExtensions[] = {"jpg", "jpeg", "png", "gif", "heic", "heif", "tiff", "tif", "bmp",
                                                "raw", "cr2", "nef", "arw", "dng", "psd", "svg", "webp", "icns"};
constexpr std::string_view audioExtensions[] = {"mp3", "aac", "wav", "flac", "m4a",
                                                "aiff", "aif", "ogg", "alac", "caf"};
constexpr std::string_view archiveExtensions[] = {"zip", "tar", "gz", "tgz", "bz2", "xz", "7z",
                                                  "rar", "dmg", "pkg", "iso", "cpgz", "zst"};
constexpr std::string_view codeExtensions[] = {"swift", "js", "ts",   "tsx",  "jsx", "py",  "rb",   "go",
                                               "rs",    "c",  "h",    "cpp",  "hpp", "m",   "mm",   "java",
                                               "kt",    "json", "xml", "yml", "yaml", "sh", "html", "css"};
constexpr std::string_view documentExtensions[] = {"pdf", "doc", "docx", "xls", "xlsx", "ppt", "pptx", "txt",
                                                   "md", "rtf", "pages", "numbers", "key", "epub", "csv"};
constexpr std::string_view cacheExtensions[] = {"log", "tmp", "cache", "crash", "ips"};

struct KnownExtension {
    std::uint64_t key = 0;
    FileCategory category = FileCategory::other;
};

// A quarter full at most, so a lookup mostly lands on its extension or an empty slot at once.
constexpr std::size_t slotBits = 9;

constexpr std::size_t slotOf(std::uint64_t key)
{
    return static_cast<std::size_t>((key * 0x9e3779b97f4a7c15ULL) >> (64 - slotBits));
}

constexpr auto knownExtensions = [] {
    std::array<KnownExtension, std::size_t{1} << slotBits> table{};
    const auto add = [&](const auto& extensions, FileCategory category) {
        for (std::string_view extension : extensions) {
            std::size_t slot = slotOf(packedExtension(extension));
            while (table[slot].key != 0)
                slot = (slot + 1) % table.size();
            table[slot] = {packedExtension(extension), category};
        }
    };
    add(videoExtensions, FileCategory::video);
    add(imageExtensions, FileCategory::images);
    add(audioExtensions, FileCategory::audio);
    add(archiveExtensions, FileCategory::archives);
    add(codeExtensions, FileCategory::code);
    add(documentExtensions, FileCategory::documents);
    add(cacheExtensions, FileCategory::caches);
    return table;
}();

constexpr FileCategory categoryOfKey(std::uint64_t key)
{
    for (std::size_t slot = slotOf(key);; slot = (slot + 1) % knownExtensions.size()) {
        if (knownExtensions[slot].key == key)
            return knownExtensions[slot].category;
        if (knownExtensions[slot].key == 0)
            return FileCategory::other;
    }
}

constexpr std::size_t knownCount(const auto&... lists)
{
    return (std::size(lists) + ...);
}

static_assert(static_cast<std::size_t>(std::count_if(knownExtensions.begin(), knownExtensions.end(),
                                                    [](KnownExtension known) { return known.key != 0; })) ==
                  knownCount(videoExtensions, imageExtensions, audioExtensions, archiveExtensions, codeExtensions,
                             documentExtensions, cacheExtensions),
              "every known extension is one to eight bytes long and belongs to one category only");
static_assert(categoryOfKey(packedExtension("JPEG")) == FileCategory::images);

}  // namespace

std::string_view rawValue(FileCategory category)
{
    switch (category) {
    case FileCategory::video: return "video";
    case FileCategory::images: return "images";
    case FileCategory::audio: return "audio";
    case FileCategory::archives: return "archives";
    case FileCategory::apps: return "apps";
    case FileCategory::code: return "code";
    case FileCategory::documents: return "documents";
    case FileCategory::caches: return "caches";
    case FileCategory::other: return "other";
    }
    return {};
}

std::string_view label(FileCategory category)
{
    switch (category) {
    case FileCategory::video: return "Video";
    case FileCategory::images: return "Images";
    case FileCategory::audio: return "Audio";
    case FileCategory::archives: return "Archives";
    case FileCategory::apps: return "Apps";
    case FileCategory::code: return "Code";
    case FileCategory::documents: return "Documents";
    // Logs and crash reports share the category with caches.
    case FileCategory::caches: return "Caches & logs";
    case FileCategory::other: return "Other";
    }
    return {};
}

FileCategoryColor color(FileCategory category)
{
    switch (category) {
    case FileCategory::video: return {0.58, 0.45, 0.86};
    case FileCategory::images: return {0.95, 0.56, 0.34};
    case FileCategory::audio: return {0.95, 0.76, 0.32};
    case FileCategory::archives: return {0.52, 0.55, 0.62};
    case FileCategory::apps: return {0.29, 0.64, 0.95};
    case FileCategory::code: return {0.30, 0.76, 0.66};
    case FileCategory::documents: return {0.42, 0.74, 0.42};
    case FileCategory::caches: return {0.84, 0.46, 0.46};
    case FileCategory::other: return {0.56, 0.56, 0.56};
    }
    return {};
}

// The extension is read from the end, at most one byte past the longest known one, so a name
// costs a few steps whatever its length.
FileCategory forFile(std::string_view name)
{
    while (name.size() > 1 && name.back() == '/')
        name.remove_suffix(1);
    const std::size_t stop = name.size() > longestExtension ? name.size() - longestExtension - 1 : 0;
    std::uint64_t key = 0;
    for (std::size_t at = name.size(); at-- > stop;) {
        const char c = name[at];
        if (c == '/')
            return FileCategory::other;
        if (c == '.') {
            // A leading dot marks a hidden name, not an extension.
            if (at == 0 || name[at - 1] == '/' || key == 0)
                return FileCategory::other;
            return categoryOfKey(key);
        }
        const std::size_t position = name.size() - 1 - at;
        if (position == longestExtension)
            return FileCategory::other;  // nine bytes and no dot: longer than any known extension
        key |= std::uint64_t{static_cast<unsigned char>(lowercase(c))} << (8 * position);
    }
    return FileCategory::other;
}

std::optional<FileCategory> bundle(std::string_view folderName)
{
    const std::string_view spelled = pathExtension(folderName);
    if (spelled.empty())
        return std::nullopt;
    const std::string extension = lowercased(spelled);
    if (isAmong(extension, {"app", "bundle", "framework", "xpc", "appex", "plugin"}))
        return FileCategory::apps;
    if (isAmong(extension, {"photoslibrary", "photolibrary"}))
        return FileCategory::images;
    return std::nullopt;
}

}  // namespace FileCategories
