// The clean history's JSON, as another copy or a damaged file may have left it: decoding never
// crashes, and whatever decodes encodes again and decodes to the same records.

#include "Services/CleanHistoryStore.h"

#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto records = CleanHistoryStore::decode(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!records)
        return 0;
    const auto text = CleanHistoryStore::encode(*records);
    if (!text)
        std::abort();
    const auto again = CleanHistoryStore::decode(*text);
    if (!again || again->size() != records->size())
        std::abort();
    for (std::size_t i = 0; i < records->size(); ++i) {
        if ((*again)[i].items != (*records)[i].items || (*again)[i].targetName != (*records)[i].targetName)
            std::abort();
    }
    return 0;
}
