#include "Platform/ProcessMemory.h"

#include <cstdlib>  // defines __GLIBC__ where the C library is glibc

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace ProcessMemory {

void releaseFreePages()
{
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

}  // namespace ProcessMemory
