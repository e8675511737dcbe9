#include "Models/CleanupCatalog.h"

#include "Platform/Paths.h"
#include "Platform/Trash.h"

namespace CleanupCatalog {
namespace {

CleanupTarget paths(std::string id, std::string name, std::string symbol, std::string detail,
                    std::vector<std::string> list, CleanupCategory category)
{
    return {std::move(id), std::move(name), std::move(symbol), std::move(detail),
            PathsKind{std::move(list)}, category, true};
}

CleanupTarget command(std::string id, std::string name, std::string symbol, std::string detail,
                      std::string shell, std::vector<std::string> fallback)
{
    return {std::move(id), std::move(name), std::move(symbol), std::move(detail),
            CommandKind{std::move(shell), std::move(fallback)}, CleanupCategory::developer, true};
}

// The desktop's Trash as a catalog path. Emptying it clears its files/ and info/ folders
// together, so no record outlives its item.
std::string trashLocation()
{
    return Paths::abbreviatingWithTilde(Trash::homeTrashFolder());
}

std::vector<CleanupTarget> makeBuiltIn()
{
    using enum CleanupCategory;
    const std::string cached = "Cached web data — pages reload as needed";
    return {
        paths("trash", "Trash", "trash.fill", "Empty the Trash", {trashLocation()}, recommended),
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

CleanupTarget finder(std::string id, std::string name, std::string detail,
                     std::vector<std::string> names, int maxDepth, std::vector<std::string> markers,
                     const std::vector<std::string>& roots, const std::vector<std::string>& ignore,
                     int minAgeDays)
{
    return {std::move(id), std::move(name), "shippingbox.fill", std::move(detail),
            FinderKind{roots, std::move(names), maxDepth, ignore, minAgeDays, std::move(markers)},
            CleanupCategory::buildArtifacts, true};
}

}  // namespace

std::vector<CleanupTarget> builtIn()
{
    return makeBuiltIn();
}

std::vector<CleanupTarget> finderTargets(const std::vector<std::string>& roots,
                                         const std::vector<std::string>& ignore, int minAgeDays)
{
    return {
        finder("node_modules", "node_modules folders", "Reinstall with npm/yarn/pnpm install",
               {"node_modules"}, 5, {}, roots, ignore, minAgeDays),
        finder("next_build", "Next.js build output", ".next folders — rebuilt on next build", {".next"},
               5, {}, roots, ignore, minAgeDays),
        finder("rust_target", "Rust target folders",
               "target/ next to Cargo.toml — rebuilt with cargo build", {"target"}, 4, {"Cargo.toml"},
               roots, ignore, minAgeDays),
        finder("pycache", "Python __pycache__", "Bytecode caches — regenerated automatically",
               {"__pycache__"}, 6, {}, roots, ignore, minAgeDays),
        finder("venv", "Python virtualenvs", ".venv next to a manifest — recreate with pip install",
               {".venv", "venv"}, 4, {"pyproject.toml", "requirements.txt", "Pipfile", "setup.py"},
               roots, ignore, minAgeDays),
    };
}

}  // namespace CleanupCatalog
