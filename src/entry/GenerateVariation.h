// Writing a variation's files in their fixed order between the user's confirmations.
#pragma once

#include <string>

#include "base/UserInterface.h"
#include "entry/ManagerApp.h"

namespace plovix {

// Writes the design file, companions, symbol and templates of app.run's description for `outputPath`, then
// hands the native-language copy to the host. False when the user stopped at the same-name check.
bool generateVariationFiles(ManagerApp& app, UserInterface& ui, const std::string& outputPath,
                            bool writeDesign, bool writeSymbol);

}  // namespace plovix
