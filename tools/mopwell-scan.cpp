// Drives the engine from the command line, so benchmarks and checks measure exactly what the
// application runs.
//
//   mopwell-scan size PATH         byte total of PATH, as the cleanup targets are measured
//   mopwell-scan projects ROOT...  one line per build folder found: kind id, bytes, path
//   mopwell-scan diskmap PATH [--json] [--profile macos|linux] [--no-read-ahead]
//                                  the disk map's walk of PATH: bytes, items and time taken, or
//                                  with --json the whole tree as the map holds it; hidden entries
//                                  are in it as the desktop's map shows them (a Mac's map leaves
//                                  them out); --no-read-ahead keeps the helper threads that read
//                                  ahead of a walk through an uncached tree from starting
//   mopwell-scan targets [--developer] [--json] [--profile macos|linux]
//                                  the targets the panel lists for the user's settings, measured,
//                                  and the reclaimable total; reads only
//   mopwell-scan dups PATH [--json] [--reference] [--stats]
//                                  the duplicate scan's final result: the largest files, then
//                                  the groups of copies (digest, size, paths in walk order);
//                                  --reference hashes every candidate in full on one thread,
//                                  with no ends read first and no copies compared byte by byte,
//                                  --stats adds the stage timings and bytes hashed on stderr

#include "Models/DiskNode.h"
#include "Models/ProjectDir.h"
#include "Platform/Utf8.h"
#include "Services/CancelToken.h"
#include "Services/DiskMapScanner.h"
#include "Services/DuplicateScanner.h"
#include "Services/ProjectScanner.h"
#include "Services/Scanner.h"
#include "TargetsCommand.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

int usage()
{
    std::fprintf(stderr, "usage: mopwell-scan size PATH\n       mopwell-scan projects ROOT...\n"
                         "       mopwell-scan diskmap PATH [--json] [--profile macos|linux] [--no-read-ahead]\n"
                         "       mopwell-scan targets [--developer] [--json] [--profile macos|linux]\n"
                         "       mopwell-scan dups PATH [--json] [--reference] [--stats]\n");
    return 2;
}

int printSize(const std::string& path)
{
    std::printf("%lld\n", static_cast<long long>(Scanner::directorySize(path)));
    return 0;
}

int printProjects(const std::vector<std::string>& roots)
{
    ProjectScanner::scan(roots, {}, 0, std::make_shared<CancelToken>(), [](int) {}, [](const ProjectDir& found) {
        std::printf("%s\t%lld\t%s\n", found.kindID.c_str(), static_cast<long long>(found.size), found.path.c_str());
    });
    return 0;
}

nlohmann::ordered_json fieldsOf(const DiskNode& node)
{
    nlohmann::ordered_json modified = nullptr;
    if (const auto date = node.modified())
        modified = std::chrono::duration<double>(date->time_since_epoch()).count();
    return {{"id", Utf8::escaped(node.id())},
            {"name", Utf8::escaped(node.name())},
            {"size", node.size()},
            {"isDirectory", node.isDirectory()},
            {"category", FileCategories::rawValue(node.category())},
            {"modified", std::move(modified)},
            {"isSynthetic", node.isSynthetic()},
            {"children", nlohmann::ordered_json::array()}};
}

// Built with a work list rather than recursion, so a tree thousands of levels deep prints too.
nlohmann::ordered_json jsonOf(const DiskNode& root)
{
    nlohmann::ordered_json document = fieldsOf(root);
    std::vector<std::pair<const DiskNode*, nlohmann::ordered_json*>> pending{{&root, &document}};
    while (!pending.empty()) {
        const auto [node, json] = pending.back();
        pending.pop_back();
        auto& children = (*json)["children"];
        for (const DiskNode& child : node->children())
            children.push_back(fieldsOf(child));
        for (std::size_t i = 0; i < node->children().size(); ++i)
            pending.emplace_back(&node->children()[i], &children[i]);
    }
    return document;
}

// The path and the options in any order.
int printDiskMap(const std::vector<std::string>& arguments)
{
    std::optional<std::string> path;
    bool asJson = false;
    PlatformProfile profile = currentPlatformProfile();
    auto readAhead = DirectoryWalker::ReadAheadMode::whenCold;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--profile") {
            const auto named = i + 1 < arguments.size() ? platformProfileNamed(arguments[++i]) : std::nullopt;
            if (!named)
                return usage();
            profile = *named;
        } else if (arguments[i] == "--json")
            asJson = true;
        else if (arguments[i] == "--no-read-ahead")
            readAhead = DirectoryWalker::ReadAheadMode::off;
        else if (!path && !arguments[i].starts_with("--"))
            path = arguments[i];
        else
            return usage();
    }
    if (!path)
        return usage();
    const auto start = std::chrono::steady_clock::now();
    // The tree is left for the operating system to reclaim at exit: freeing it record by record
    // costs a walk over every item, which a command about to end gains nothing from. The pointer
    // stays reachable, so leak checkers don't report it.
    static const DiskNode* const tree =
        new DiskNode(DiskMapScanner::scanStreaming(*path, std::make_shared<CancelToken>(), {}, {},
                                                   DiskMapScanner::hiddenEntriesOn(profile), readAhead));
    const DiskNode& root = *tree;
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    if (asJson) {
        std::printf("%s\n", jsonOf(root).dump(1).c_str());
        return 0;
    }
    std::printf("%lld bytes\t%lld items\t%.3f s\n", static_cast<long long>(root.size()),
                static_cast<long long>(root.itemCount()), elapsed.count());
    return 0;
}

// A file name as the tools print it.
std::string pathText(const std::string& path)
{
    return path;
}

nlohmann::ordered_json jsonOf(const FileScanResult& result)
{
    nlohmann::ordered_json largest = nlohmann::ordered_json::array();
    for (const ScannedFile& file : result.largest)
        largest.push_back({{"path", Utf8::escaped(file.path)}, {"size", file.size}});
    nlohmann::ordered_json groups = nlohmann::ordered_json::array();
    for (const DuplicateGroup& group : result.duplicates) {
        nlohmann::ordered_json paths = nlohmann::ordered_json::array();
        for (const ScannedFile& file : group.files)
            paths.push_back(Utf8::escaped(file.path));
        groups.push_back({{"id", group.id}, {"size", group.size}, {"paths", std::move(paths)}});
    }
    return {{"largest", std::move(largest)}, {"duplicates", std::move(groups)}};
}

void printText(const FileScanResult& result)
{
    std::printf("largest:\n");
    for (const ScannedFile& file : result.largest)
        std::printf("  %lld\t%s\n", static_cast<long long>(file.size), pathText(file.path).c_str());
    std::printf("duplicates:\n");
    for (const DuplicateGroup& group : result.duplicates) {
        std::printf("  %s\t%lld\t%zu copies\n", group.id.c_str(), static_cast<long long>(group.size),
                    group.files.size());
        for (const ScannedFile& file : group.files)
            std::printf("    %s\n", pathText(file.path).c_str());
    }
}

int printDuplicates(const std::string& path, const std::vector<std::string>& flags)
{
    bool asJson = false, reference = false, stats = false;
    for (const std::string& flag : flags) {
        if (flag == "--json")
            asJson = true;
        else if (flag == "--reference")
            reference = true;
        else if (flag == "--stats")
            stats = true;
        else
            return usage();
    }
    BucketHasher::Counters counters;
    DuplicateScanner::Options options;
    options.counters = &counters;
    if (reference)
        options.hashing = {.setAsideByEnds = false, .compareWithFirst = false, .threads = 1};
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    std::optional<Clock::time_point> walked;
    std::int64_t files = 0;
    FileScanResult final;
    DuplicateScanner::scan(
        path, std::make_shared<CancelToken>(), [&files](std::int64_t count) { files = count; },
        [&](const FileScanResult& result) {
            if (!walked)
                walked = Clock::now();
            final = result;
        },
        options);
    const auto end = Clock::now();
    if (asJson)
        std::printf("%s\n", jsonOf(final).dump(1, ' ', false, nlohmann::ordered_json::error_handler_t::replace).c_str());
    else
        printText(final);
    if (stats) {
        const std::chrono::duration<double> walk = walked.value_or(end) - start, hashing = end - walked.value_or(end);
        std::fprintf(stderr, "files %lld\twalk %.3f s\thashing %.3f s\thashed %lld files, %lld bytes\tset aside %lld\tcompared %lld\n",
                     static_cast<long long>(files), walk.count(), hashing.count(),
                     static_cast<long long>(counters.filesHashed.load()),
                     static_cast<long long>(counters.bytesHashed.load()),
                     static_cast<long long>(counters.filesSetAside.load()),
                     static_cast<long long>(counters.filesCompared.load()));
    }
    return 0;
}

}  // namespace

// File names are bytes and JSON is UTF-8: every name and path in the JSON the tool prints goes
// through the same escape as the stored clean history, so a script gets every byte back.
int help()
{
    std::printf("mopwell-scan drives Mopwell's engine from the command line.\n\n");
    usage();
    std::printf("\nNames in JSON output: file names are bytes, JSON strings are UTF-8. A byte that is\n"
                "not part of well-formed UTF-8 is written as \\xhh (two lower-case hex digits) and a\n"
                "backslash as \\\\; everything else as it is on disk. Undo the two to get the exact bytes\n"
                "back (the clean history stores names the same way).\n");
    return 0;
}

int main(int argc, char** argv)
{
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0))
        return help();
    if (argc >= 2 && std::strcmp(argv[1], "targets") == 0) {
        const int status = runTargetsCommand(std::vector<std::string>(argv + 2, argv + argc));
        return status == 2 ? usage() : status;
    }
    if (argc < 3)
        return usage();
    const std::string command = argv[1];
    if (command == "size" && argc == 3)
        return printSize(argv[2]);
    if (command == "diskmap")
        return printDiskMap(std::vector<std::string>(argv + 2, argv + argc));
    if (command == "dups")
        return printDuplicates(argv[2], std::vector<std::string>(argv + 3, argv + argc));
    if (command == "projects")
        return printProjects(std::vector<std::string>(argv + 2, argv + argc));
    return usage();
}
