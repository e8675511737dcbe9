#pragma once

#include <string>
#include <string_view>

// Words for a POSIX shell command line. Anything that came from outside (a package name from a
// tool's JSON, a snapshot stamp, a file name) goes into a command line through here, so it
// reaches the program as exactly one argument, unchanged, whatever characters it holds.
namespace ShellQuote {

// `text` as it is when it holds only letters, digits and the punctuation no shell treats
// specially (so ordinary commands read as they would be typed); otherwise in single quotes,
// each single quote inside written as '\''. The empty string becomes ''.
std::string word(std::string_view text);

}  // namespace ShellQuote
