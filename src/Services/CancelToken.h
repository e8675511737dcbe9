#pragma once

#include <atomic>

// The cancel flag a model shares with the scan it started. A new scan gets a new token, so a
// late result of an old scan is recognised by its token.
class CancelToken {
public:
    void cancel() { cancelled_.store(true, std::memory_order_release); }
    bool isCancelled() const { return cancelled_.load(std::memory_order_acquire); }

private:
    std::atomic<bool> cancelled_{false};
};
