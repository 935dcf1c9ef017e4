// Asking a modulon's plug-in to describe its settings, as the DESCRIBE element of its catalog entry offers.
#pragma once

#include <string>
#include <vector>

#include "base/UserInterface.h"
#include "catalog/WizardCatalog.h"
#include "entry/ManagerApp.h"
#include "entry/ModulonSettings.h"

namespace plovix {

// The protocol's limits: the most a plug-in may print, and how long it may take.
inline constexpr size_t kDescribeOutputLimit = 1 << 20;
inline constexpr int kDescribeTimeoutSeconds = 10;

// The arguments that make the plug-in of `entry` describe itself: the catalog's command line split into
// words, each %-code expanded within its word, the program found as for a launch, and the DESCRIBE words
// added as whole arguments. No output path and no window options. Reads app.run.catalog for %w.
std::vector<std::string> describeCommand(ManagerApp& app, UserInterface& ui, const CatalogEntry& entry);

// Starts that command with no input, reads the JSON object it prints and takes the settings from it. On
// failure gives false and the text that says why (message kDescribeFailed).
bool describeModulon(ManagerApp& app, UserInterface& ui, const CatalogEntry& entry, ModulonSettings& out,
                     std::string& failure);

}  // namespace plovix
