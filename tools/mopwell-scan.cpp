// Drives the engine from the command line, so benchmarks and checks measure exactly what the
// application runs.
//
//   mopwell-scan size PATH         byte total of PATH, as the cleanup targets are measured
//   mopwell-scan projects ROOT...  one line per build folder found: kind id, bytes, path

#include "Models/ProjectDir.h"
#include "Services/CancelToken.h"
#include "Services/ProjectScanner.h"
#include "Services/Scanner.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

int usage()
{
    std::fprintf(stderr, "usage: mopwell-scan size PATH\n       mopwell-scan projects ROOT...\n");
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

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return usage();
    const std::string command = argv[1];
    if (command == "size" && argc == 3)
        return printSize(argv[2]);
    if (command == "projects")
        return printProjects(std::vector<std::string>(argv + 2, argv + argc));
    return usage();
}
