// The hint lines batch adds after a box that leaves the user guessing: which value is at fault, what to do.
#pragma once

#include <string>
#include <vector>

#include "catalog/WizardCatalog.h"

namespace plovix {

// Up to `count` modulon names of the catalog closest to `name` (by edit distance, ignoring case, aliases
// counting for their modulon), the closest first; only names near enough to be a misspelling.
std::vector<std::string> closestModulonNames(const WizardCatalog& catalog, const std::string& name,
                                             size_t count = 3);

// Whether the catalog has a command line for `name` or for the modulon it is an alias of.
bool catalogListsModulon(const WizardCatalog& catalog, const std::string& name);

// The hint for a modulon the catalog does not list: the closest names, and --list-modulons.
std::string unknownModulonHint(const WizardCatalog& catalog, const std::string& name);

// Why `directory` cannot hold or show the design file (it does not exist, is no directory, or cannot be
// read), or empty when nothing is wrong with it.
std::string directoryHint(const std::string& directory);

// The hint for a catalog without entries: the two library paths that were read.
std::string emptyCatalogHint(const std::string& userLibraryPath, const std::string& libraryPath);

}  // namespace plovix
