#pragma once

#include <array>
#include <optional>
#include <string_view>

// What kind of content a file or package of the disk map holds, judged by its name alone. The
// kind decides a tile's colour and the legend's labels.
enum class FileCategory { video, images, audio, archives, apps, code, documents, caches, other };

// An opaque sRGB colour, components from 0 to 1. Kept free of any toolkit type so the engine can
// use it; the views convert it where they draw.
struct FileCategoryColor {
    double red = 0;
    double green = 0;
    double blue = 0;
    bool operator==(const FileCategoryColor&) const = default;
};

namespace FileCategories {

// In legend order, which is also the declaration order: a case's underlying value is its index
// here, so a category fits in a byte and indexes per-category tables.
inline constexpr std::array<FileCategory, 9> all = {
    FileCategory::video, FileCategory::images, FileCategory::audio,
    FileCategory::archives, FileCategory::apps, FileCategory::code,
    FileCategory::documents, FileCategory::caches, FileCategory::other};

std::string_view rawValue(FileCategory category);

// The English label, which is also the key the views translate it by.
std::string_view label(FileCategory category);
FileCategoryColor color(FileCategory category);

// The category of a file by its extension (the text after the last dot of the last component,
// unless that dot leads the name), case-insensitively; `other` when the extension is unknown or
// missing. Never `apps`: applications are folders and come from bundle().
FileCategory forFile(std::string_view name);

// The category of a folder that stands for one item (an application, a photo library), or none
// when the folder's contents should decide.
std::optional<FileCategory> bundle(std::string_view folderName);

}  // namespace FileCategories
