// Reading the HDL text mode from its name and from the environment.
#include "hdl/HdlTextMode.h"

#include <string>

#include "base/FileSystem.h"
#include "base/TextHelpers.h"

namespace plovix {

bool parseHdlTextMode(std::string_view text, HdlTextMode& mode) {
  const std::string word = toLowerText(text);
  if (word == "standard") {
    mode = HdlTextMode::kStandard;
  } else if (word == "valid") {
    mode = HdlTextMode::kValid;
  } else {
    return false;
  }
  return true;
}

HdlTextMode hdlTextModeFromEnvironment() {
  HdlTextMode mode = HdlTextMode::kStandard;
  parseHdlTextMode(environmentVariable(kHdlTextVariable), mode);
  return mode;
}

}  // namespace plovix
