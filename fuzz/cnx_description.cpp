// Fuzzer of a CNX description and everything that consumes it: the text is read in memory (as a file's bytes
// would be), and a description that reads goes through the netlist, the THDL, VHDL and Verilog writers
// (design, companion or black box, instantiation template), the retrieval info and the symbol builder. The
// same bytes are also read as a variation file whose CNX file is rebuilt from its header and retrieval info.
// The symbol is named in /proc, where no file can be made: the whole drawing is built and only its write
// fails.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "FuzzInterface.h"
#include "base/TextFile.h"
#include "cnx/CnxReader.h"
#include "cnx/RetrievalInfo.h"
#include "hdl/Netlist.h"
#include "hdl/ThdlFileWriter.h"
#include "hdl/VerilogFileWriter.h"
#include "hdl/VhdlFileWriter.h"
#include "symbol/SymbolBuilder.h"

namespace {

constexpr const char* kBasePath = "/proc/var";
constexpr const char* kSignature = "m";

// Every text the language's writer builds; the frame that opens every design text must be there, and the
// retrieval info always opens with its banner.
void buildTexts(const plovix::HdlFileWriter& writer, const plovix::CnxDescription& description) {
  const std::string design = writer.designText();
  if (design.compare(0, writer.commentLeader().size(), writer.commentLeader()) != 0) std::abort();
  writer.buildCompanionText();
  writer.buildInstanceText();
  const std::string info = plovix::retrievalInfoText(description, writer.commentLeader());
  if (info.compare(0, writer.commentLeader().size() + 5, writer.commentLeader() + " ====") != 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text = plovix::fromTextMode(std::string_view(reinterpret_cast<const char*>(data), size));
  plovix::fuzz::SilentInterface ui;

  // As a variation file: what edit mode rebuilds from it starts with its version line.
  const plovix::RebuiltCnx rebuilt = plovix::rebuildCnxText(ui, text, "--");
  if (rebuilt.state == plovix::RebuiltCnx::State::kRebuilt && rebuilt.text.rfind("VERSION: ", 0) != 0)
    std::abort();

  plovix::CnxReader reader(ui, "");
  if (!reader.readText(text)) return 0;
  const plovix::CnxDescription& description = reader.description();
  if (description.modules.empty() || description.moduleNames.empty()) std::abort();

  plovix::ThdlFileWriter thdl(ui, kBasePath, kSignature, description);
  buildTexts(thdl, description);
  const plovix::Netlist netlist = plovix::buildNetlist(description, kSignature);
  plovix::VhdlFileWriter vhdl(ui, kBasePath, kSignature, description, netlist);
  buildTexts(vhdl, description);
  plovix::VerilogFileWriter verilog(ui, kBasePath, kSignature, description, netlist);
  buildTexts(verilog, description);
  verilog.buildBlackBoxText();

  plovix::SymbolBuilder symbol(ui, kBasePath, description);
  if (symbol.buildSymbol()) std::abort();  // nothing can be written under /proc
  return 0;
}
