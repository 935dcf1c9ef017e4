// The list of bundled modulons.
#include "ModulonLibrary.h"

namespace plovix::wizard {

std::vector<Modulon> bundledModulons() {
  return {counterModulon(),      addSubModulon(),      compareModulon(),  muxModulon(),
          decodeModulon(),       constantModulon(),    ramModulon(),      shiftRegisterModulon(),
          countCompareModulon(), inverterModulon(),    andModulon(),      orModulon(),
          xorModulon(),          busDriverModulon(),   shifterModulon(),  multiplierModulon(),
          dividerModulon(),      absoluteModulon(),    flipFlopModulon(), latchModulon(),
          romModulon(),          dualPortRamModulon(), fifoModulon(),     dualClockFifoModulon(),
          fifoLevelModulon()};
}

const Modulon* findModulon(const std::vector<Modulon>& modulons, const std::string& name) {
  for (const Modulon& modulon : modulons) {
    if (modulon.name == name) return &modulon;
  }
  return nullptr;
}

long long bitsFor(long long value) {
  long long bits = 1;
  while (bits < 62 && (1LL << bits) < value) ++bits;
  return bits;
}

}  // namespace plovix::wizard

namespace plovix::wizard {

Bounds wordGroupBounds(OutputLanguage language, long long count, long long width) {
  return language == OutputLanguage::kThdl ? Bounds::rows(count, width) : Bounds::bus(count * width);
}

}  // namespace plovix::wizard
