#include "Models/LinuxCatalog.h"

#include "Models/CatalogRows.h"
#include "Platform/FileSystem.h"
#include "Platform/Paths.h"
#include "Platform/Trash.h"
#include "Platform/XdgFolders.h"

#include <algorithm>

namespace LinuxCatalog {
namespace {

std::string tilde(const std::string& path)
{
    return Paths::abbreviatingWithTilde(path);
}

std::string inCache(const std::string& relative)
{
    return tilde(XdgFolders::cacheHome() + "/" + relative);
}

bool isRealFolder(const std::string& path)
{
    const auto info = FileSystem::info(path);
    return info && info->isFolder();
}

// Inside a Flatpak sandbox an app's $XDG_CACHE_HOME is ~/.var/app/<app>/cache; inside a Snap
// with the desktop launcher it is ~/snap/<snap>/common/.cache.
std::string flatpakCache(const std::string& app, const std::string& relative)
{
    return "~/.var/app/" + app + "/cache/" + relative;
}

std::string snapCache(const std::string& snap, const std::string& relative)
{
    return "~/snap/" + snap + "/common/.cache/" + relative;
}

// The whole cache folder, except the sign-in tokens Hugging Face keeps in its corner of it: they
// are credentials, not caches, and a clean must not sign the user out.
CleanupTarget appCaches()
{
    CleanupTarget target =
        CatalogRows::paths("appcaches", QT_TRANSLATE_NOOP("CleanupCatalog", "App cache files"), "shippingbox.fill",
                           QT_TRANSLATE_NOOP("CleanupCatalog", "Temporary files apps recreate as needed"),
                           {tilde(XdgFolders::cacheHome())}, CleanupCategory::recommended);
    std::get<PathsKind>(target.kind).excluded = {inCache("huggingface/token"), inCache("huggingface/stored_tokens")};
    return target;
}

}  // namespace

std::vector<std::string> flatpakCacheFolders()
{
    const std::string apps = Paths::home() + "/.var/app";
    auto names = FileSystem::contentsOfFolder(apps).value_or(std::vector<std::string>{});
    std::sort(names.begin(), names.end());
    std::vector<std::string> folders;
    for (const auto& name : names) {
        if (isRealFolder(apps + "/" + name) && isRealFolder(apps + "/" + name + "/cache"))
            folders.push_back("~/.var/app/" + name + "/cache");
    }
    return folders;
}

std::vector<CleanupTarget> rows()
{
    using enum CleanupCategory;
    using CatalogRows::command;
    using CatalogRows::paths;
    const std::string& cached = CatalogRows::cachedWebData;
    std::vector<CleanupTarget> table = {
        // Emptying the Trash clears its files/ and info/ folders together, so no record outlives
        // its item.
        paths("trash", QT_TRANSLATE_NOOP("CleanupCatalog", "Trash"), "trash.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "Empty the Trash"), {tilde(Trash::homeTrashFolder())}, recommended),
        appCaches(),
        // Xorg keeps its log here when it runs without root rights, as desktops start it now.
        paths("logs", QT_TRANSLATE_NOOP("CleanupCatalog", "Display server logs"), "doc.text.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "Old Xorg log files"), {tilde(XdgFolders::dataHome() + "/xorg")},
              recommended),
        paths("savedstate", QT_TRANSLATE_NOOP("CleanupCatalog", "Saved session state"), "macwindow",
              QT_TRANSLATE_NOOP("CleanupCatalog", "Window/tab restore data — apps won't reopen last session"),
              {inCache("sessions")}, recommended),
        paths("thumbnails", QT_TRANSLATE_NOOP("CleanupCatalog", "Thumbnails"), "photo.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "Previews file managers recreate as needed"),
              {inCache("thumbnails"), "~/.thumbnails"}, recommended),
        paths("flatpakcaches", QT_TRANSLATE_NOOP("CleanupCatalog", "Flatpak app caches"), "shippingbox.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "Temporary files Flatpak apps recreate as needed"),
              flatpakCacheFolders(), recommended),
        paths("chrome", QT_TRANSLATE_NOOP("CleanupCatalog", "Google Chrome cache"), "globe", cached,
              {inCache("google-chrome"), flatpakCache("com.google.Chrome", "google-chrome")}, browsers),
        paths("chromium", QT_TRANSLATE_NOOP("CleanupCatalog", "Chromium cache"), "globe", cached,
              {inCache("chromium"), flatpakCache("org.chromium.Chromium", "chromium"),
               snapCache("chromium", "chromium")},
              browsers),
        paths("firefox", QT_TRANSLATE_NOOP("CleanupCatalog", "Firefox cache"), "globe", cached,
              {inCache("mozilla/firefox"), flatpakCache("org.mozilla.firefox", "mozilla/firefox"),
               snapCache("firefox", "mozilla/firefox")},
              browsers),
        paths("gradle", QT_TRANSLATE_NOOP("CleanupCatalog", "Gradle caches"), "shippingbox.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "Android/Gradle downloads & build cache"),
              {"~/.gradle/caches", "~/.gradle/wrapper/dists"}, developer),
        command("npm", QT_TRANSLATE_NOOP("CleanupCatalog", "npm cache"), "cube.box.fill",
                QT_TRANSLATE_NOOP("CleanupCatalog", "Node package cache"), "npm cache clean --force",
                {"~/.npm/_cacache"}),
        command("yarn", QT_TRANSLATE_NOOP("CleanupCatalog", "Yarn cache"), "cube.box.fill",
                QT_TRANSLATE_NOOP("CleanupCatalog", "Yarn package cache"), "yarn cache clean", {inCache("yarn")}),
        command("pnpm", QT_TRANSLATE_NOOP("CleanupCatalog", "pnpm store"), "cube.box.fill",
                QT_TRANSLATE_NOOP("CleanupCatalog", "pnpm content-addressable store"), "pnpm store prune",
                {tilde(XdgFolders::dataHome() + "/pnpm/store"), "~/.pnpm-store"}),
        command("uv", QT_TRANSLATE_NOOP("CleanupCatalog", "uv cache"), "cube.box.fill",
                QT_TRANSLATE_NOOP("CleanupCatalog", "Python uv package cache"), "uv cache clean", {inCache("uv")}),
        paths("pip", QT_TRANSLATE_NOOP("CleanupCatalog", "pip cache"), "cube.box.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "Python pip download cache"), {inCache("pip")}, developer),
        paths("pub", QT_TRANSLATE_NOOP("CleanupCatalog", "Flutter / pub cache"), "cube.box.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "Dart/Flutter packages"), {"~/.pub-cache"}, developer),
        command("go", QT_TRANSLATE_NOOP("CleanupCatalog", "Go module cache"), "cube.box.fill",
                QT_TRANSLATE_NOOP("CleanupCatalog", "Downloaded Go modules"), "go clean -modcache", {"~/go/pkg/mod"}),
        paths("cargo", QT_TRANSLATE_NOOP("CleanupCatalog", "Cargo registry cache"), "cube.box.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "Rust crate downloads"),
              {"~/.cargo/registry/cache", "~/.cargo/registry/src"}, developer),
        command("docker", QT_TRANSLATE_NOOP("CleanupCatalog", "Docker prune"), "shippingbox.fill",
                QT_TRANSLATE_NOOP("CleanupCatalog", "Dangling images, stopped containers, build cache"),
                "docker system prune -f", {}),
        paths("jetbrains", QT_TRANSLATE_NOOP("CleanupCatalog", "JetBrains caches"), "cube.box.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "IntelliJ/PyCharm/etc. caches"), {inCache("JetBrains")}, developer),
        command("brew", QT_TRANSLATE_NOOP("CleanupCatalog", "Homebrew cleanup"), "mug.fill",
                QT_TRANSLATE_NOOP("CleanupCatalog", "Old versions & download cache"), "brew cleanup -s",
                {inCache("Homebrew")}),
        paths("swiftpm", QT_TRANSLATE_NOOP("CleanupCatalog", "Swift / build tool caches"), "cube.box.fill",
              QT_TRANSLATE_NOOP("CleanupCatalog", "SwiftPM, TypeScript, node-gyp"),
              {inCache("org.swift.swiftpm"), inCache("typescript"), inCache("node-gyp")}, developer),
        // Only the model store of Hugging Face, whose folder also keeps the sign-in tokens.
        paths("ml", QT_TRANSLATE_NOOP("CleanupCatalog", "ML / browser-automation caches"), "brain.head.profile",
              QT_TRANSLATE_NOOP("CleanupCatalog", "puppeteer, huggingface, whisper, selenium"),
              {"~/.cache/puppeteer", inCache("huggingface/hub"), inCache("whisper"), "~/.cache/selenium"},
              developer),
    };
    // A desktop without per-user Flatpak apps has no such caches; the row would only ever be empty.
    std::erase_if(table, [](const CleanupTarget& target) {
        return target.id == "flatpakcaches" && std::get<PathsKind>(target.kind).paths.empty();
    });
    return table;
}

}  // namespace LinuxCatalog
