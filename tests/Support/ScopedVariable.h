#pragma once

#include <cstdlib>
#include <optional>
#include <string>

// Sets an environment variable, or without a value unsets it, for as long as this lives; then
// puts back what was there.
class ScopedVariable {
public:
    ScopedVariable(const char* name, const std::optional<std::string>& value) : name_(name)
    {
        if (const char* old = std::getenv(name))
            saved_ = old;
        set(name_, value);
    }
    ~ScopedVariable() { set(name_, saved_); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
    static void set(const char* name, const std::optional<std::string>& value)
    {
        if (value)
            setenv(name, value->c_str(), 1);
        else
            unsetenv(name);
    }

    const char* name_;
    std::optional<std::string> saved_;
};
