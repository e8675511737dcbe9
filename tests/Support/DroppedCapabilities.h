#pragma once

// Tests run as root here, and root reads and writes folders whatever their mode. While an
// instance lives, the process gives up the two capabilities that allow that, so mode 000 and
// read-only folders mean what they say; the destructor takes them back.
class DroppedCapabilities {
public:
    DroppedCapabilities();
    ~DroppedCapabilities();
    DroppedCapabilities(const DroppedCapabilities&) = delete;
    DroppedCapabilities& operator=(const DroppedCapabilities&) = delete;

    // False when the capabilities could not be dropped; a test should then skip, saying why.
    bool active() const { return active_; }

private:
    bool active_ = false;
};

// Skips the current test, with the reason, when permissions can't be enforced.
#define MOPWELL_REQUIRE_ENFORCED_PERMISSIONS(dropped)                                               \
    do {                                                                                            \
        if (!(dropped).active())                                                                    \
            GTEST_SKIP() << "cannot drop CAP_DAC_OVERRIDE/CAP_DAC_READ_SEARCH; permissions are not enforced"; \
    } while (0)
