// Golden files: generated texts compared byte for byte with files kept in the source tree. A difference fails
// the test with a unified diff; with PLOVIX_UPDATE_GOLDEN=1 in the environment the files are rewritten
// instead (review the rewritten files in the commit like code).
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "RunCommand.h"
#include "TempDir.h"

namespace plovix::testing {

inline bool updatingGolden() {
  const char* update = std::getenv("PLOVIX_UPDATE_GOLDEN");
  return update != nullptr && std::string(update) == "1";
}

// Compares `actual` with the golden file at `path` (or writes it there when updating).
inline void expectGolden(const std::string& actual, const std::string& path) {
  if (updatingGolden()) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << actual;
    return;
  }
  if (!std::filesystem::exists(path)) {
    ADD_FAILURE() << path << " is missing; PLOVIX_UPDATE_GOLDEN=1 writes it";
    return;
  }
  if (actual == TempDir::readFile(path)) return;
  TempDir temp;
  temp.write("generated", actual);
  const CommandResult diff =
      runCommand("diff", {"-u", "--label", path, "--label", "generated", path, temp.path("generated")});
  ADD_FAILURE() << "the generated text differs from " << path << " (PLOVIX_UPDATE_GOLDEN=1 rewrites it):\n"
                << diff.out;
}

}  // namespace plovix::testing
