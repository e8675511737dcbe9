.pragma library

// A home as a Linux desktop fills it: caches under ~/.cache (thumbnails, the browsers', pip's and
// a few others), Xorg's old log, two items in the Trash, the developer caches outside ~/.cache,
// and a Firefox profile that no clean may touch. Sizes in bytes.
const caches = [
    [".cache/thumbnails/normal/3f2a9c1d7e5b4a6f8c0d2e4f6a8b0c1d.png", 420000],
    [".cache/thumbnails/large/9b8a7c6d5e4f3a2b1c0d9e8f7a6b5c4d.png", 1300000],
    [".cache/mozilla/firefox/k3x9q2z1.default-release/cache2/entries/4C1F0A9E2B7D", 5200000],
    [".cache/mozilla/firefox/k3x9q2z1.default-release/startupCache/scriptCache.bin", 900000],
    [".cache/google-chrome/Default/Cache/Cache_Data/data_1", 2600000],
    [".cache/pip/http-v2/a/b/c/d/e/4e5f6a7b8c9d", 1800000],
    [".cache/fontconfig/5b1d7ce8c3a7d4c6-le64.cache-9", 300000],
    [".cache/mesa_shader_cache/index", 1100000],
    [".local/share/xorg/Xorg.0.log.old", 46000],
]
const trash = [
    [".local/share/Trash/files/old report.pdf", 1700000],
    [".local/share/Trash/files/Screenshot from 2024-05-02.png", 650000],
]
const developer = [
    [".npm/_cacache/content-v2/sha512/aa/bb/cc", 3900000],
    [".gradle/caches/modules-2/files-2.1/guava-33.0.jar", 3100000],
]
const profile = [
    [".mozilla/firefox/k3x9q2z1.default-release/places.sqlite", 5000000],
    [".mozilla/firefox/k3x9q2z1.default-release/prefs.js", 12000],
]

function seed(support) {
    for (const [path, bytes] of caches.concat(trash, developer, profile))
        support.writeFile(path, bytes)
    for (const [path] of trash) {
        const name = path.split("/").pop()
        support.writeFile(".local/share/Trash/info/" + name + ".trashinfo", 80)
    }
}
