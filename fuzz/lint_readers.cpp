// Fuzzer of what plovix --lint reads: any bytes as a tool's output, and as a design text to make stubs from.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "lint/LintFinding.h"
#include "lint/LintStubs.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  for (const char* tool : {"ghdl", "iverilog", "verilator", "yosys"}) {
    for (const plovix::LintFinding& finding : plovix::parseToolOutput(tool, text)) {
      if (finding.line < 0 || finding.tool != tool) std::abort();
    }
  }
  const std::vector<std::string> modules = plovix::variationModules(text);
  for (const plovix::LintStub& stub : plovix::vhdlStubs(text, text, modules)) {
    if (stub.name.empty()) std::abort();
  }
  for (const plovix::LintStub& stub : plovix::verilogStubs(text, modules)) {
    if (stub.name.empty()) std::abort();
  }
  return 0;
}
