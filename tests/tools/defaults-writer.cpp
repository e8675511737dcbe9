// Writes settings and history into the defaults file at argv[1] as fast as it can, forever, for
// the test that kills it at random moments. Step i stores refreshInterval = i, then a history
// whose newest record freed i bytes, then a total of i: whatever moment it dies at, the file
// must hold one of those states, complete.

#include "Platform/DefaultsStore.h"
#include "Services/CleanHistoryStore.h"

#include <string>
#include <vector>

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    DefaultsStore store(argv[1]);
    std::vector<CleanRecord> history;
    for (std::int64_t step = 1;; ++step) {
        store.set("refreshInterval", static_cast<double>(step));
        // Names long enough that a write takes a while, and not all of them UTF-8.
        history.insert(history.begin(), CleanRecord::make("step " + std::to_string(step) + " caf\xe9 " + std::string(400, 'x'),
                                                          step, true, {{"/home/u/odd\xff/" + std::to_string(step), "/t"}}));
        CleanHistoryStore::save(store, history, step);
    }
}
