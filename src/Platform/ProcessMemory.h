#pragma once

// How the process gives memory back to the system.
namespace ProcessMemory {

// Hands back to the system the heap's pages that nothing uses any more. A window's many small
// blocks, freed when it closes, lie scattered between live ones, where the heap would otherwise
// keep their pages for as long as the status item lives. Called once something large has gone
// (a tool window), not as a routine: it walks the whole heap.
void releaseFreePages();

}  // namespace ProcessMemory
