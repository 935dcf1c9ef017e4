// The list of bundled modulons.
#include "ModulonLibrary.h"

namespace plovix::wizard {

std::vector<Modulon> bundledModulons() {
  return {counterModulon(),  addSubModulon(), compareModulon(),       muxModulon(),         decodeModulon(),
          constantModulon(), ramModulon(),    shiftRegisterModulon(), countCompareModulon()};
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
