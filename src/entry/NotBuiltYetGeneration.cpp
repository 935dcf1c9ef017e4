// Temporary: conflict checks and generation are being written; until then a run says so plainly.
#include "entry/ConflictChecks.h"
#include "entry/GenerateVariation.h"

namespace plovix {

std::string resolveSubComponentClash(UserInterface&, const ManagerRun& run) { return run.fileTitle; }
bool confirmSameNameFiles(UserInterface&, const ManagerRun&, const std::string&) { return true; }
std::string listExistingOutputs(const ManagerRun&, const std::string&, bool, bool) { return {}; }

bool generateVariationFiles(ManagerApp&, UserInterface& ui, const std::string&, bool, bool) {
  ui.report("Writing variation files is not built yet.");
  return false;
}

}  // namespace plovix
