// Fuzzer of a CNX description and everything that consumes it: the text is read in memory (as a file's bytes
// would be), and a description that reads goes through the netlist, the THDL, VHDL and Verilog writers
// (design, companion, instantiation and black-box texts) and the symbol builder. The symbol is named in
// /proc, where no file can be made: the whole drawing is built and only its write fails.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "FuzzInterface.h"
#include "base/TextFile.h"
#include "cnx/CnxDescription.h"
#include "hdl/ThdlFileWriter.h"
#include "hdl/VerilogFileWriter.h"
#include "hdl/VhdlFileWriter.h"
#include "symbol/SymbolBuilder.h"

namespace {

constexpr const char* kBasePath = "/proc/var";

// Every text the language's writer builds; the frame that opens every design text must be there.
void buildTexts(plovix::HdlFileWriter& writer) {
  const std::string design = writer.designText();
  if (design.compare(0, writer.commentLeader().size(), writer.commentLeader()) != 0) std::abort();
  writer.buildCompanionText();
  writer.buildInstanceText();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text = plovix::fromTextMode(std::string_view(reinterpret_cast<const char*>(data), size));
  plovix::fuzz::SilentInterface ui;
  plovix::CnxDescription description;
  if (!description.readDescriptionText(ui, text)) return 0;
  if (description.modules.empty() || description.moduleNames.empty()) std::abort();

  plovix::ThdlFileWriter thdl(ui, kBasePath, "m", description);
  buildTexts(thdl);
  plovix::VhdlFileWriter vhdl(ui, kBasePath, "m", description);
  buildTexts(vhdl);
  plovix::VerilogFileWriter verilog(ui, kBasePath, "m", description);
  buildTexts(verilog);
  verilog.buildBlackBoxText();

  plovix::SymbolBuilder symbol(ui, kBasePath, description);
  if (symbol.buildSymbol()) std::abort();  // nothing can be written under /proc
  return 0;
}
