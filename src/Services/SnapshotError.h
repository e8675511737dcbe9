#pragma once

#include <exception>
#include <string>
#include <utility>

// Why a removal of snapshots did not happen: the administrator command failed (with the
// message it gave), or the user dismissed the request for rights.
class SnapshotError : public std::exception {
public:
    enum class Kind { failed, cancelled };

    static SnapshotError failed(std::string message) { return SnapshotError(Kind::failed, std::move(message)); }
    static SnapshotError cancelled() { return SnapshotError(Kind::cancelled, {}); }

    Kind kind() const { return kind_; }
    const std::string& message() const { return message_; }
    const char* what() const noexcept override { return message_.c_str(); }

private:
    SnapshotError(Kind kind, std::string message) : kind_(kind), message_(std::move(message)) {}

    Kind kind_;
    std::string message_;
};
