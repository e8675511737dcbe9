#pragma once

#include "Services/ShellResult.h"

#include <string>

// Runs one command line in the user's login shell, so with the user's profile applied and the
// tools it puts on the search path found, from the home folder and with the inherited
// environment. Each call blocks its thread until the command has ended, so callers normally
// run it on a background thread. Nothing is thrown: every failure is a status and an output.
namespace ShellRunner {

// `command` goes to the shell as it is, unquoted. After `timeoutSeconds` the command and
// everything it started in the background get SIGTERM (SIGKILL a few seconds later if they
// still hold the output open), and the result holds what was written until then. A time-out
// that isn't a finite number means no time limit.
ShellResult runLogin(const std::string& command, double timeoutSeconds);

// The same with `shell` in place of the user's own shell.
ShellResult runLoginWith(const std::string& shell, const std::string& command, double timeoutSeconds);

}  // namespace ShellRunner
