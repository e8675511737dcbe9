#include "Models/MacOSCatalog.h"

#include "Models/CatalogRows.h"

namespace MacOSCatalog {

std::vector<CleanupTarget> rows()
{
    using enum CleanupCategory;
    using CatalogRows::command;
    using CatalogRows::paths;
    const std::string& cached = CatalogRows::cachedWebData;
    return {
        paths("trash", "Trash", "trash.fill", "Empty the Trash", {"~/.Trash"}, recommended),
        paths("appcaches", "App cache files", "shippingbox.fill",
              "Temporary files apps recreate as needed", {"~/Library/Caches"}, recommended),
        paths("logs", "App & system logs", "doc.text.fill", "Old log files", {"~/Library/Logs"},
              recommended),
        paths("savedstate", "Saved application state", "macwindow",
              "Window/tab restore data — apps won't reopen last session",
              {"~/Library/Saved Application State"}, recommended),
        paths("musiccache", "Apple Music cache", "music.note",
              "Streamed-audio cache — songs re-buffer next time",
              {"~/Library/Caches/com.apple.Music/SubscriptionPlayCache",
               "~/Library/Caches/com.apple.Music/fsCachedData"},
              recommended),
        paths("maildownloads", "Mail attachment previews", "envelope.fill",
              "Temp copies of opened attachments — originals stay safe",
              {"~/Library/Containers/com.apple.mail/Data/Library/Mail Downloads"}, recommended),
        paths("chrome", "Google Chrome cache", "globe", cached,
              {"~/Library/Caches/Google/Chrome",
               "~/Library/Application Support/Google/Chrome/Default/Cache",
               "~/Library/Application Support/Google/Chrome/Default/Code Cache"},
              browsers),
        paths("safari", "Safari cache", "safari.fill", cached,
              {"~/Library/Containers/com.apple.Safari/Data/Library/Caches"}, browsers),
        paths("firefox", "Firefox cache", "globe", cached, {"~/Library/Caches/Firefox"}, browsers),
        paths("derived", "Xcode DerivedData", "hammer.fill", "Build artifacts — rebuilt on next build",
              {"~/Library/Developer/Xcode/DerivedData"}, developer),
        paths("devicesupport", "Old iOS DeviceSupport", "iphone.gen2",
              "Symbol caches — regenerated on device connect",
              {"~/Library/Developer/Xcode/iOS DeviceSupport"}, developer),
        command("sims", "Unavailable simulators", "iphone.slash",
                "Orphaned iOS simulators (active ones kept)", "xcrun simctl delete unavailable", {}),
        paths("gradle", "Gradle caches", "shippingbox.fill", "Android/Gradle downloads & build cache",
              {"~/.gradle/caches", "~/.gradle/wrapper/dists"}, developer),
        command("npm", "npm cache", "cube.box.fill", "Node package cache", "npm cache clean --force",
                {"~/.npm/_cacache"}),
        command("yarn", "Yarn cache", "cube.box.fill", "Yarn package cache", "yarn cache clean",
                {"~/Library/Caches/Yarn"}),
        command("pnpm", "pnpm store", "cube.box.fill", "pnpm content-addressable store",
                "pnpm store prune", {"~/Library/pnpm/store", "~/.pnpm-store"}),
        command("uv", "uv cache", "cube.box.fill", "Python uv package cache", "uv cache clean",
                {"~/.cache/uv"}),
        paths("pip", "pip cache", "cube.box.fill", "Python pip download cache",
              {"~/Library/Caches/pip"}, developer),
        command("pods", "CocoaPods cache", "cube.box.fill", "Pod download cache",
                "pod cache clean --all", {"~/Library/Caches/CocoaPods"}),
        paths("pub", "Flutter / pub cache", "cube.box.fill", "Dart/Flutter packages", {"~/.pub-cache"},
              developer),
        command("go", "Go module cache", "cube.box.fill", "Downloaded Go modules",
                "go clean -modcache", {"~/go/pkg/mod"}),
        paths("cargo", "Cargo registry cache", "cube.box.fill", "Rust crate downloads",
              {"~/.cargo/registry/cache", "~/.cargo/registry/src"}, developer),
        command("docker", "Docker prune", "shippingbox.fill",
                "Dangling images, stopped containers, build cache", "docker system prune -f", {}),
        paths("jetbrains", "JetBrains caches", "cube.box.fill", "IntelliJ/PyCharm/etc. caches",
              {"~/Library/Caches/JetBrains"}, developer),
        command("brew", "Homebrew cleanup", "mug.fill", "Old versions & download cache",
                "brew cleanup -s", {"~/Library/Caches/Homebrew"}),
        paths("swiftpm", "Swift / build tool caches", "cube.box.fill", "SwiftPM, TypeScript, node-gyp",
              {"~/Library/Caches/org.swift.swiftpm", "~/Library/Caches/typescript",
               "~/Library/Caches/node-gyp"},
              developer),
        paths("ml", "ML / browser-automation caches", "brain.head.profile",
              "puppeteer, huggingface, whisper, selenium",
              {"~/.cache/puppeteer", "~/.cache/huggingface", "~/.cache/whisper", "~/.cache/selenium"},
              developer),
    };
}

}  // namespace MacOSCatalog
