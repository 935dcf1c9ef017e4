// Running plovix in batch mode, the HDL tools and shell commands from the end-to-end tests.
#pragma once

#include <string>

#include "TempDir.h"
#include "ToolRun.h"

namespace plovix::testing {

// plovix --batch in the directory as project, with the bundled library found by default (no library path
// set). modulon and language may be empty (an edit run).
ToolRun plovixBatch(const TempDir& project, const std::string& modulon, const std::string& language,
                    const std::string& pluginArgs, const std::string& designFile);

// The bundled library in the build tree.
std::string modulonLibrary();

// Shell quoting of one word.
inline std::string quoted(const std::string& word) {
  return shellQuote(word);
}

}  // namespace plovix::testing
