#pragma once

#include "Models/ProjectDir.h"
#include "Services/CancelToken.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

// Finds every kind of build folder below the code folders, measures each one and hands it over
// as soon as it is measured.
namespace ProjectScanner {

// Blocks: runs on the caller's thread, and so do the callbacks. The search itself runs to its end
// (it only lists folders); the token is looked at before each found folder is measured, so a
// cancelled scan stops at the next folder with no further callback. `onProgress` gets the number
// of folders measured so far, just before `onFound` gets the folder itself.
//
// Measuring takes far longer than searching, so a caller that wants to show folders before their
// sizes are known passes `onDiscovered`: it gets every folder the search accepted, dated, with a
// size of 0, in the order they will then be measured, once, before the first is measured.
void scan(const std::vector<std::string>& roots, const std::vector<std::string>& ignore, int minAgeDays,
          const std::shared_ptr<CancelToken>& token, const std::function<void(int)>& onProgress,
          const std::function<void(const ProjectDir&)>& onFound,
          const std::function<void(const std::vector<ProjectDir>&)>& onDiscovered = {});

}  // namespace ProjectScanner
