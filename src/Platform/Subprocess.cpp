#include "Platform/Subprocess.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace Subprocess {
namespace {

using SteadyClock = std::chrono::steady_clock;
using std::chrono::milliseconds;

std::string describe(int error)
{
    return std::generic_category().message(error);
}

// Closes its descriptor on every way out of run().
class FileDescriptor {
public:
    explicit FileDescriptor(int fd) : fd_(fd) {}
    ~FileDescriptor() { reset(); }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int get() const { return fd_; }
    void reset()
    {
        if (fd_ >= 0)
            ::close(fd_);
        fd_ = -1;
    }

private:
    int fd_;
};

// A pipe end that landed on 0, 1 or 2 (the application was started with a standard stream
// closed) would be clobbered by the child's own redirections; move it out of their way.
int aboveStandardStreams(int fd)
{
    if (fd > STDERR_FILENO)
        return fd;
    const int moved = fcntl(fd, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    if (moved < 0)
        return fd;
    ::close(fd);
    return moved;
}

// The child's file actions and attributes, released on every way out.
class SpawnSetup {
public:
    SpawnSetup(int outputFd, const std::string& workingFolder)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_adddup2(&actions_, outputFd, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, outputFd, STDERR_FILENO);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        if (!workingFolder.empty())
            posix_spawn_file_actions_addchdir_np(&actions_, workingFolder.c_str());

        // The application may ignore SIGPIPE or block signals on its worker threads; the
        // commands it runs expect neither.
        posix_spawnattr_init(&attributes_);
        sigset_t all;
        sigfillset(&all);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setpgroup(&attributes_, 0);
        posix_spawnattr_setflags(&attributes_,
                                 POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }
    ~SpawnSetup()
    {
        posix_spawn_file_actions_destroy(&actions_);
        posix_spawnattr_destroy(&attributes_);
    }
    SpawnSetup(const SpawnSetup&) = delete;
    SpawnSetup& operator=(const SpawnSetup&) = delete;

    const posix_spawn_file_actions_t* actions() const { return &actions_; }
    const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    posix_spawn_file_actions_t actions_;
    posix_spawnattr_t attributes_;
};

// Returns 0 and the child's id, or the error number of the failed launch.
int spawn(const Options& options, int outputFd, pid_t& pid)
{
    std::vector<std::string> words;
    words.reserve(options.arguments.size() + 1);
    words.push_back(options.executable);
    words.insert(words.end(), options.arguments.begin(), options.arguments.end());
    std::vector<char*> argv;
    for (auto& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);

    const SpawnSetup setup(outputFd, options.workingFolder);
    return posix_spawn(&pid, options.executable.c_str(), setup.actions(), setup.attributes(),
                       argv.data(), environ);
}

std::string launchFailureReason(const Options& options, int error)
{
    // A missing program and a missing working folder give the same error number; name the one
    // that is really at fault.
    const bool folderAtFault = !options.workingFolder.empty()
        && access(options.workingFolder.c_str(), X_OK) != 0
        && access(options.executable.c_str(), X_OK) == 0;
    if (folderAtFault)
        return "cannot enter " + options.workingFolder + ": " + describe(error);
    return options.executable + ": " + describe(error);
}

// The time limit and what follows it: SIGTERM to the group, then SIGKILL, then giving up.
class Deadline {
public:
    Deadline(pid_t group, const Options& options) : group_(group), grace_(options.killGrace)
    {
        if (options.timeout)
            at_ = SteadyClock::now() + std::max(*options.timeout, milliseconds(0));
    }

    bool isSet() const { return at_.has_value(); }
    bool hasPassed() const { return at_ && SteadyClock::now() >= *at_; }
    bool timedOut() const { return stage_ != Stage::running; }

    // What poll() may wait: rounded up so it never wakes before the deadline; -1 without one.
    int millisecondsLeft() const
    {
        if (!at_)
            return -1;
        const auto left = std::chrono::ceil<milliseconds>(*at_ - SteadyClock::now()).count();
        return static_cast<int>(std::clamp<long long>(left, 0, INT_MAX));
    }

    // Takes the next step once the deadline has passed; false when only giving up is left.
    bool escalate()
    {
        switch (stage_) {
        case Stage::running:
            signalGroup(SIGTERM, Stage::terminated);
            return true;
        case Stage::terminated:
            signalGroup(SIGKILL, Stage::killed);
            return true;
        case Stage::killed:
            break;
        }
        return false;
    }

private:
    enum class Stage { running, terminated, killed };

    // The group leader is reaped only after this object is done with it, so its id, which is
    // the group's, cannot have been handed to another process.
    void signalGroup(int signal, Stage next)
    {
        ::kill(-group_, signal);
        stage_ = next;
        at_ = SteadyClock::now() + grace_;
    }

    pid_t group_;
    milliseconds grace_;
    std::optional<SteadyClock::time_point> at_;
    Stage stage_ = Stage::running;
};

void readToEnd(int fd, Deadline& deadline, std::string& output)
{
    char buffer[65536];
    pollfd entry{fd, POLLIN, 0};
    for (;;) {
        // Checked before every read too, so a program that never stops writing still times out.
        if (deadline.hasPassed() && !deadline.escalate())
            return;
        const int ready = poll(&entry, 1, deadline.millisecondsLeft());
        if (ready == 0 || (ready < 0 && errno == EINTR))
            continue;
        if (ready < 0)
            return;
        const ssize_t count = ::read(fd, buffer, sizeof buffer);
        if (count > 0)
            output.append(buffer, static_cast<std::size_t>(count));
        else if (count == 0 || errno != EINTR)
            return;
    }
}

int decodedStatus(int waitStatus)
{
    if (WIFEXITED(waitStatus))
        return WEXITSTATUS(waitStatus);
    if (WIFSIGNALED(waitStatus))
        return 128 + WTERMSIG(waitStatus);
    return -1;
}

// A program may close its output and run on, so the time limit keeps counting while we wait.
int waitForExit(pid_t pid, Deadline& deadline)
{
    bool blocking = !deadline.isSet();
    milliseconds pause(1);
    for (;;) {
        int waitStatus = 0;
        const pid_t done = waitpid(pid, &waitStatus, blocking ? 0 : WNOHANG);
        if (done == pid)
            return decodedStatus(waitStatus);
        if (done < 0 && errno != EINTR)
            return -1;
        if (done != 0)
            continue;
        if (deadline.hasPassed() && !deadline.escalate()) {
            blocking = true;  // SIGKILL has been sent; nothing is left but to wait for it
            continue;
        }
        std::this_thread::sleep_for(std::min(pause, milliseconds(deadline.millisecondsLeft())));
        pause = std::min(pause * 2, milliseconds(50));
    }
}

}  // namespace

Result run(const Options& options)
{
    Result result;
    int ends[2];
    // Close-on-exec from the start: a program launched meanwhile from another thread must not
    // inherit our writing end, or our pipe would stay open as long as that program runs.
    if (pipe2(ends, O_CLOEXEC) != 0) {
        result.launchError = "cannot create a pipe: " + describe(errno);
        return result;
    }
    FileDescriptor readEnd(aboveStandardStreams(ends[0]));
    FileDescriptor writeEnd(aboveStandardStreams(ends[1]));

    pid_t pid = 0;
    const int error = spawn(options, writeEnd.get(), pid);
    // Only the child may hold the writing end, or the pipe would never reach its end.
    writeEnd.reset();
    if (error != 0) {
        result.launchError = launchFailureReason(options, error);
        return result;
    }
    result.launched = true;

    Deadline deadline(pid, options);
    readToEnd(readEnd.get(), deadline, result.output);
    readEnd.reset();
    result.status = waitForExit(pid, deadline);
    result.timedOut = deadline.timedOut();
    return result;
}

}  // namespace Subprocess
