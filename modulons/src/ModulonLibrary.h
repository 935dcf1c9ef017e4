// The modulons this plug-in offers, and looking one up by name.
#pragma once

#include <string>
#include <vector>

#include "Modulon.h"

namespace plovix::wizard {

// Every bundled modulon, in catalog order.
std::vector<Modulon> bundledModulons();

// The modulon of that name (exact), or nullptr.
const Modulon* findModulon(const std::vector<Modulon>& modulons, const std::string& name);

// Each modulon's definition, one per file.
Modulon counterModulon();
Modulon addSubModulon();
Modulon compareModulon();
Modulon muxModulon();
Modulon decodeModulon();
Modulon constantModulon();
Modulon ramModulon();
Modulon shiftRegisterModulon();
Modulon countCompareModulon();

// The smallest number of bits that can count to value - 1 (at least 1).
long long bitsFor(long long value);

}  // namespace plovix::wizard
