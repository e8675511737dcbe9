#include "Models/BuildArtifactType.h"

#include "Platform/UserText.h"

namespace {

BuildArtifactType kind(std::string id, std::string label, std::vector<std::string> names, int maxDepth,
                       std::vector<std::string> markers)
{
    return {std::move(id), std::move(label), "shippingbox.fill", std::move(names), maxDepth, std::move(markers)};
}

std::vector<BuildArtifactType> makeAll()
{
    // Names shared by unrelated tools ("build", "dist", "bin", "vendor") are trusted only beside
    // the manifest of a tool that writes them; caches no one keeps by hand need no marker.
    const std::vector<std::string> npm = {"package.json"};
    const std::vector<std::string> gradle = {"build.gradle", "build.gradle.kts"};
    return {
        kind("node_modules", "node_modules", {"node_modules"}, 6, npm),
        kind("next", ".next", {".next"}, 6, npm),
        kind("nuxt", ".nuxt / .output", {".nuxt", ".output"}, 6, npm),
        kind("sveltekit", ".svelte-kit", {".svelte-kit"}, 6, npm),
        kind("turbo", ".turbo", {".turbo"}, 6, npm),
        kind("parcel", ".parcel-cache", {".parcel-cache"}, 6, npm),
        kind("js_dist", "dist", {"dist"}, 6, npm),
        kind("target", "target", {"target"}, 5, {"Cargo.toml", "pom.xml"}),
        kind("build", "build", {"build"}, 5, {"build.gradle", "build.gradle.kts", "pubspec.yaml", "CMakeLists.txt"}),
        kind("gradle_cache", ".gradle", {".gradle"}, 5, gradle),
        kind("cmake", "cmake-build", {"cmake-build-debug", "cmake-build-release"}, 5, {"CMakeLists.txt"}),
        kind("spm_build", ".build", {".build"}, 5, {"Package.swift"}),
        kind("pods", "Pods", {"Pods"}, 5, {"Podfile"}),
        kind("dart_tool", ".dart_tool", {".dart_tool"}, 5, {"pubspec.yaml"}),
        kind("venv", ".venv", {".venv", "venv"}, 4, {"pyproject.toml", "requirements.txt", "Pipfile", "setup.py"}),
        kind("pycache", "__pycache__", {"__pycache__"}, 8, {}),
        kind("py_caches", QT_TRANSLATE_NOOP("BuildArtifactType", "py caches"),
             {".pytest_cache", ".mypy_cache", ".ruff_cache", ".tox"}, 6, {}),
        kind("php_vendor", "vendor", {"vendor"}, 5, {"composer.json"}),
        kind("dotnet", "bin / obj", {"bin", "obj"}, 5, {"*.csproj", "*.sln", "*.fsproj", "*.vbproj"}),
        kind("elixir", "_build / deps", {"_build", "deps"}, 5, {"mix.exs"}),
        kind("haskell", "dist-newstyle", {"dist-newstyle"}, 5, {"*.cabal", "stack.yaml"}),
    };
}

}  // namespace

const std::vector<BuildArtifactType>& BuildArtifactType::all()
{
    static const std::vector<BuildArtifactType> table = makeAll();
    return table;
}
