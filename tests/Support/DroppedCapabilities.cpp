#include "Support/DroppedCapabilities.h"

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

bool changeEffective(bool keep)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[2]{};
    if (syscall(SYS_capget, &header, data) != 0)
        return false;
    const unsigned mask = (1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH);
    if (keep)
        data[0].effective |= (data[0].permitted & mask);
    else
        data[0].effective &= ~mask;
    return syscall(SYS_capset, &header, data) == 0;
}

bool holdsOverride()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[2]{};
    return syscall(SYS_capget, &header, data) == 0 && (data[0].effective & (1u << CAP_DAC_OVERRIDE)) != 0;
}

}  // namespace

DroppedCapabilities::DroppedCapabilities()
{
    // A process that never had the capabilities (an ordinary user) is already enforced.
    active_ = getuid() != 0 || (changeEffective(false) && !holdsOverride());
}

DroppedCapabilities::~DroppedCapabilities()
{
    if (getuid() == 0)
        changeEffective(true);
}
