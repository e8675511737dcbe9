// The escape every stored or printed name goes through: any bytes escape to UTF-8 and come back
// unchanged, and unescaping any text at all is safe.

#include "Platform/Utf8.h"

#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string text = Utf8::escaped(bytes);
    if (!Utf8::isValid(text) || Utf8::unescaped(text) != bytes)
        std::abort();
    (void)Utf8::unescaped(bytes);
    return 0;
}
