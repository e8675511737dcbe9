#pragma once

#include "Support/ScopedVariable.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>

// Points HOME and the XDG folders at a fresh temporary folder for its lifetime, then restores
// the environment and removes the folder. No test may touch the real home, Trash or settings.
class TempHome {
public:
    TempHome();
    ~TempHome();
    TempHome(const TempHome&) = delete;
    TempHome& operator=(const TempHome&) = delete;

    const std::string& root() const { return root_; }
    const std::string& home() const { return home_; }
    // The XDG folders where most desktops leave them: inside the home folder.
    std::string configHome() const { return home_ + "/.config"; }
    std::string dataHome() const { return home_ + "/.local/share"; }

    // Creates a file (and its folders) below the home folder; `relative` has no leading "/".
    std::string writeFile(const std::string& relative, const std::string& contents = {}) const;
    std::string makeFolder(const std::string& relative) const;

private:
    std::string root_;
    std::string home_;
    std::deque<ScopedVariable> variables_;  // put back as they were when this goes
};

// A test with its own temporary home.
class TempHomeTest : public ::testing::Test {
protected:
    TempHome tempHome;
};
