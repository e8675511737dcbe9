#include "Models/FileCategory.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace FileCategories;

// The views and the command-line tool tell categories apart by their raw values.
TEST(FileCategory, RawValuesAreDistinct)
{
    std::set<std::string_view> values;
    for (FileCategory category : all)
        values.insert(rawValue(category));
    EXPECT_EQ(values.size(), all.size());
    EXPECT_FALSE(values.contains(""));
}

TEST(FileCategory, FilesAreSortedByExtensionWhateverTheCase)
{
    const std::pair<const char*, FileCategory> cases[] = {
        {"MOVIE.MOV", FileCategory::video},       {"clip.m2ts", FileCategory::video},
        {"Photo.JPG", FileCategory::images},      {"AppIcon.icns", FileCategory::images},
        {"song.Flac", FileCategory::audio},       {"loop.caf", FileCategory::audio},
        {"archive.tar.gz", FileCategory::archives}, {"Installer.dmg", FileCategory::archives},
        {"main.m", FileCategory::code},           {"config.YAML", FileCategory::code},
        {"Keynote.key", FileCategory::documents}, {"data.csv", FileCategory::documents},
        {"system.log", FileCategory::caches},     {"Crash.ips", FileCategory::caches},
        {"/Users/me/Movies/trip.mp4", FileCategory::video}, {"Movies/trip.MP4/", FileCategory::video},
        {"backup.numbers", FileCategory::documents},
    };
    for (const auto& [name, expected] : cases)
        EXPECT_EQ(forFile(name), expected) << name;
    // No extension, only a leading dot, an unknown or near-miss one, or a folder's.
    for (const char* name : {"README", ".bashrc", ".cache", "notes.", "", "photos.d/README",
                             "file.unknown", "Tool.app", "clip.mp", "photo.jpgs", "photo.xjpg",
                             "notes.markdown", "book.epubbook", "main.c\xc3\xa9", "photos/.png", "a.png/b", "/", "LICENSE-MIT", "clip.mp4abcdef"})
        EXPECT_EQ(forFile(name), FileCategory::other) << name;
}

TEST(FileCategory, BundlesAreRecognisedByTheirFolderExtensionOnly)
{
    EXPECT_EQ(bundle("Safari.app"), FileCategory::apps);
    EXPECT_EQ(bundle("Sparkle.FRAMEWORK"), FileCategory::apps);
    EXPECT_EQ(bundle("Share.appex"), FileCategory::apps);
    EXPECT_EQ(bundle("Photos Library.photoslibrary"), FileCategory::images);
    EXPECT_EQ(bundle("Old.photolibrary"), FileCategory::images);
    for (const char* name : {"Documents", "backup.zip", "pictures.jpg", ".app", "Folder."})
        EXPECT_EQ(bundle(name), std::nullopt) << name;
}
