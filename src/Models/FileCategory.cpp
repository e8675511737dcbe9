#include "Models/FileCategory.h"

#include "Models/RawValueLookup.h"

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
// an extension of up to eight bytes, lowercased, packs into one integer, and the known ones sit
// sorted in a table built at compile time. 0 stands for an empty or longer extension, which no
// known one is.
constexpr std::uint64_t packedExtension(std::string_view extension)
{
    if (extension.empty() || extension.size() > sizeof(std::uint64_t))
        return 0;
    std::uint64_t key = 0;
    for (std::size_t i = 0; i < extension.size(); ++i)
        key |= std::uint64_t{static_cast<unsigned char>(lowercase(extension[i]))} << (8 * i);
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

constexpr auto knownExtensions = [] {
    std::array<KnownExtension, std::size(videoExtensions) + std::size(imageExtensions) + std::size(audioExtensions) +
                                   std::size(archiveExtensions) + std::size(codeExtensions) +
                                   std::size(documentExtensions) + std::size(cacheExtensions)>
        table{};
    std::size_t next = 0;
    const auto add = [&](const auto& extensions, FileCategory category) {
        for (std::string_view extension : extensions)
            table[next++] = {packedExtension(extension), category};
    };
    add(videoExtensions, FileCategory::video);
    add(imageExtensions, FileCategory::images);
    add(audioExtensions, FileCategory::audio);
    add(archiveExtensions, FileCategory::archives);
    add(codeExtensions, FileCategory::code);
    add(documentExtensions, FileCategory::documents);
    add(cacheExtensions, FileCategory::caches);
    std::sort(table.begin(), table.end(), [](KnownExtension a, KnownExtension b) { return a.key < b.key; });
    return table;
}();

static_assert(knownExtensions.front().key != 0, "every known extension is one to eight bytes long");
static_assert(std::adjacent_find(knownExtensions.begin(), knownExtensions.end(),
                                 [](KnownExtension a, KnownExtension b) { return a.key == b.key; }) ==
                  knownExtensions.end(),
              "an extension belongs to one category only");

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

std::optional<FileCategory> fromRawValue(std::string_view raw)
{
    return caseForRawValue(all, rawValue, raw);
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

FileCategory forFile(std::string_view name)
{
    const std::uint64_t key = packedExtension(pathExtension(name));
    if (key == 0)
        return FileCategory::other;
    const auto found = std::lower_bound(knownExtensions.begin(), knownExtensions.end(), key,
                                        [](KnownExtension known, std::uint64_t wanted) { return known.key < wanted; });
    return (found != knownExtensions.end() && found->key == key) ? found->category : FileCategory::other;
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
