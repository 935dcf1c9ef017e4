// Reading a catalog entry's XML information block: abstract, aliases, native HDL and tool, vendor scripts,
// whether the plug-in describes itself.
#pragma once

#include <map>
#include <string>

#include "catalog/WizardCatalog.h"

namespace plovix {

// The words a DESCRIBE element without its ARGS attribute stands for.
inline constexpr const char* kDefaultDescribeArgs = "--describe";

// Parses the block (which starts with "<INFO>") and, when it is well formed, copies its information into the
// entry and registers its aliases under the entry's name. A malformed block changes nothing and raises the
// reader's XML_SAX_PARSE_EXCEPTION or XML_EXCEPTION. Scripts are taken for `platform` or for no platform.
void readInformationBlock(const std::string& block, const std::string& platform, CatalogEntry& entry,
                          std::map<std::string, std::string>& aliases);

}  // namespace plovix
