// An application bundle's Contents/Info.plist, XML or binary, read where it lies.

#include "Platform/Bundle.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const std::string bundle = [] {
        char folder[] = "/tmp/mopwell-fuzz-bundle.XXXXXX";
        if (!mkdtemp(folder))
            std::abort();
        const std::string path = std::string(folder) + "/Fuzz.app";
        std::filesystem::create_directories(path + "/Contents");
        return path;
    }();
    if (FILE* file = std::fopen((bundle + "/Contents/Info.plist").c_str(), "wb")) {
        std::fwrite(data, 1, size, file);
        std::fclose(file);
    }
    if (const auto info = Bundle::open(bundle))
        (void)info->identifier;
    return 0;
}
