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

// Blocks: runs on the caller's thread, and so do both callbacks. The search itself runs to its end
// (it only lists folders); the token is looked at before each found folder is measured, so a
// cancelled scan stops at the next folder with no further callback. `onProgress` gets the number
// of folders measured so far, just before `onFound` gets the folder itself.
void scan(const std::vector<std::string>& roots, const std::vector<std::string>& ignore, int minAgeDays,
          const std::shared_ptr<CancelToken>& token, const std::function<void(int)>& onProgress,
          const std::function<void(const ProjectDir&)>& onFound);

}  // namespace ProjectScanner
