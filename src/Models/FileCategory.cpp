#include "Models/FileCategory.h"

#include "Models/RawValueLookup.h"

#include <algorithm>
#include <initializer_list>
#include <string>

namespace FileCategories {
namespace {

// Names come from the disk, so only the ASCII letters of an extension are folded: every known
// extension is plain ASCII.
std::string lowercased(std::string_view text)
{
    std::string result(text);
    for (char& c : result) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

std::string pathExtension(std::string_view name)
{
    while (name.size() > 1 && name.back() == '/')
        name.remove_suffix(1);
    const auto slash = name.rfind('/');
    const std::string_view component = slash == std::string_view::npos ? name : name.substr(slash + 1);
    const auto dot = component.rfind('.');
    // A leading dot marks a hidden name, not an extension.
    if (dot == std::string_view::npos || dot == 0)
        return {};
    return lowercased(component.substr(dot + 1));
}

bool isAmong(const std::string& extension, std::initializer_list<std::string_view> list)
{
    return std::find(list.begin(), list.end(), extension) != list.end();
}

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
    const std::string extension = pathExtension(name);
    if (extension.empty())
        return FileCategory::other;
    // Checked in this order, the first match wins.
    if (isAmong(extension, {"mov", "mp4", "m4v", "avi", "mkv", "webm", "wmv", "flv", "mpg", "mpeg", "m2ts"}))
        return FileCategory::video;
    if (isAmong(extension, {"jpg", "jpeg", "png", "gif", "heic", "heif", "tiff", "tif", "bmp", "raw", "cr2",
                            "nef", "arw", "dng", "psd", "svg", "webp", "icns"}))
        return FileCategory::images;
    if (isAmong(extension, {"mp3", "aac", "wav", "flac", "m4a", "aiff", "aif", "ogg", "alac", "caf"}))
        return FileCategory::audio;
    if (isAmong(extension,
                {"zip", "tar", "gz", "tgz", "bz2", "xz", "7z", "rar", "dmg", "pkg", "iso", "cpgz", "zst"}))
        return FileCategory::archives;
    if (isAmong(extension, {"swift", "js", "ts", "tsx", "jsx", "py", "rb", "go", "rs", "c", "h", "cpp",
                            "hpp", "m", "mm", "java", "kt", "json", "xml", "yml", "yaml", "sh", "html", "css"}))
        return FileCategory::code;
    if (isAmong(extension, {"pdf", "doc", "docx", "xls", "xlsx", "ppt", "pptx", "txt", "md", "rtf", "pages",
                            "numbers", "key", "epub", "csv"}))
        return FileCategory::documents;
    if (isAmong(extension, {"log", "tmp", "cache", "crash", "ips"}))
        return FileCategory::caches;
    return FileCategory::other;
}

std::optional<FileCategory> bundle(std::string_view folderName)
{
    const std::string extension = pathExtension(folderName);
    if (isAmong(extension, {"app", "bundle", "framework", "xpc", "appex", "plugin"}))
        return FileCategory::apps;
    if (isAmong(extension, {"photoslibrary", "photolibrary"}))
        return FileCategory::images;
    return std::nullopt;
}

}  // namespace FileCategories
