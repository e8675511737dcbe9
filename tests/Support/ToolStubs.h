#pragma once

#include <string>
#include <vector>

// Stand-ins for the outside tools the application runs (package managers, snapshot tools,
// pkexec): small shell scripts in a folder of their own that comes first on the search path, both
// of this process and of the login shell commands run in (through the profile files of the home
// folder, as a user's own profile would put it there). The login shell sees nothing else but a
// few basic utilities, so a tool that isn't stubbed is missing, whatever the machine has.
//
// Each stub appends its arguments to a log, one call per line written as "[arg1][arg2]…", and then
// runs the body it was given.
class ToolStubs {
public:
    // The stubs live in `folder`; the profile files go into `home`.
    ToolStubs(std::string folder, std::string home);
    // Removes the stubs and the profile files, and gives this process its search path back.
    ~ToolStubs();
    ToolStubs(const ToolStubs&) = delete;
    ToolStubs& operator=(const ToolStubs&) = delete;

    // Writes (or replaces) the stub `name` and returns its path. Also rewrites the profile files,
    // which a test may have removed with the home folder.
    std::string install(const std::string& name, const std::string& body);
    // The calls the stub has received so far, oldest first.
    std::vector<std::string> calls(const std::string& name) const;
    // Removes every stub and its log.
    void clear();

    const std::string& folder() const { return folder_; }

private:
    void writeProfiles() const;

    std::string folder_;
    std::string basics_;
    std::string home_;
    std::string savedPath_;
};
