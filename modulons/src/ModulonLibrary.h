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
Modulon inverterModulon();
Modulon andModulon();
Modulon orModulon();
Modulon xorModulon();
Modulon busDriverModulon();
Modulon shifterModulon();
Modulon multiplierModulon();
Modulon dividerModulon();
Modulon absoluteModulon();
Modulon flipFlopModulon();
Modulon latchModulon();
Modulon romModulon();
Modulon dualPortRamModulon();
Modulon fifoModulon();
Modulon dualClockFifoModulon();
Modulon fifoLevelModulon();

// The smallest number of bits that can count to value - 1 (at least 1).
long long bitsFor(long long value);

// A group of count words of width bits: one row per word in THDL, which has two-dimensional ports; in VHDL
// and Verilog one flattened bus with word k at bits k * width, as the library models take it.
Bounds wordGroupBounds(OutputLanguage language, long long count, long long width);

}  // namespace plovix::wizard
