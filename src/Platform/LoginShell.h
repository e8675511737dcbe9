#pragma once

#include <string>

namespace Platform {

// The user's own shell, which commands run in as a login shell ("-lc") so that the user's
// profile sets up the search path. Taken from the password database; /bin/sh when the entry is
// empty, names nothing executable, or is one of the stand-ins given to accounts that may not
// log in (nologin, false), since those would refuse every command.
std::string loginShell();

}  // namespace Platform
