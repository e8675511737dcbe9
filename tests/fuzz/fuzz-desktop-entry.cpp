// Desktop entries (applications/ and autostart/): any bytes give some entry, and every reading
// of it is safe.

#include "Platform/DesktopEntry.h"

#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const DesktopEntry entry = DesktopEntry::parse(text);
    for (const char* key : {"Name", "Exec", "Icon", "Hidden", "X-GNOME-Autostart-enabled", "OnlyShowIn", "Name[de]"}) {
        (void)entry.raw(key);
        (void)entry.string(key);
        (void)entry.boolean(key);
        (void)entry.strings(key);
    }
    (void)entry.execArguments();
    (void)DesktopEntry::splitExec(text);
    (void)DesktopEntry::unescape(text);
    return 0;
}
