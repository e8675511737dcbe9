#include "Support/ToolStubs.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;

namespace {

// What the stubs and the shell's own start-up need; everything else stays out of reach.
const char* const basicUtilities[] = {"sh", "bash", "cat", "sleep", "env", "mkdir", "mv", "rm", "touch",
                                      "id", "tr", "sed", "grep", "head", "dirname", "basename", "ls", "printf"};

std::string quoted(const std::string& path)
{
    std::string text = "'";
    for (const char c : path)
        text += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return text + "'";
}

}  // namespace

ToolStubs::ToolStubs(std::string folder, std::string home)
    : folder_(std::move(folder)), basics_(folder_ + "-basics"), home_(std::move(home))
{
    fs::create_directories(folder_);
    fs::create_directories(basics_);
    for (const char* name : basicUtilities) {
        for (const char* place : {"/usr/bin/", "/bin/"}) {
            std::error_code error;
            if (fs::exists(std::string(place) + name, error)) {
                fs::create_symlink(std::string(place) + name, basics_ + "/" + name, error);
                break;
            }
        }
    }
    const char* path = std::getenv("PATH");
    savedPath_ = path ? path : "";
    setenv("PATH", (folder_ + ":" + savedPath_).c_str(), 1);
    writeProfiles();
}

ToolStubs::~ToolStubs()
{
    setenv("PATH", savedPath_.c_str(), 1);
    std::error_code error;
    fs::remove_all(folder_, error);
    fs::remove_all(basics_, error);
    for (const char* name : {".profile", ".bash_profile", ".zprofile"})
        fs::remove(home_ + "/" + name, error);
}

std::string ToolStubs::install(const std::string& name, const std::string& body)
{
    const std::string path = folder_ + "/" + name;
    std::ofstream(path, std::ios::trunc) << "#!/bin/sh\n"
                                         << "{ for a in \"$@\"; do printf '[%s]' \"$a\"; done; printf '\\n'; } >> "
                                         << quoted(path + ".calls") << "\n"
                                         << body << "\n";
    fs::permissions(path, fs::perms(0755));
    writeProfiles();
    return path;
}

std::vector<std::string> ToolStubs::calls(const std::string& name) const
{
    std::vector<std::string> lines;
    std::ifstream log(folder_ + "/" + name + ".calls");
    for (std::string line; std::getline(log, line);)
        lines.push_back(line);
    return lines;
}

void ToolStubs::clear()
{
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder_, error))
        fs::remove_all(entry.path(), error);
}

void ToolStubs::writeProfiles() const
{
    // The login files of sh, bash and zsh, whichever the user's shell is.
    const std::string profile = "PATH=" + quoted(folder_ + ":" + basics_) + "; export PATH\n";
    fs::create_directories(home_);
    for (const char* name : {".profile", ".bash_profile", ".zprofile"})
        std::ofstream(home_ + "/" + name, std::ios::trunc) << profile;
}
