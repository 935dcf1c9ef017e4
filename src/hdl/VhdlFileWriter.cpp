// The VHDL writer's construction, the design text frame, the component declaration file and the template.
#include "hdl/VhdlFileWriter.h"

#include <utility>

#include "base/Format.h"
#include "hdl/ValidWiring.h"

namespace plovix {

VhdlFileWriter::VhdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                               const CnxDescription& description, const Netlist& netlist, HdlTextMode mode)
    : HdlFileWriter(ui, std::move(basePath), std::move(signatureName), description),
      mode_(mode),
      validNetlist_(mode == HdlTextMode::kValid ? validWiring(netlist, description) : nullptr),
      netlist_(validNetlist_ ? *validNetlist_ : netlist) {
  setOutputKind(OutputLanguage::kVhdl);
}

std::string VhdlFileWriter::buildDesignText() const {
  const VhdlNetlist signals = declareVhdlSignals(netlist_, description_, signatureName_, mode_);
  return fillTemplate(
      "%s\n%s\n%s%sARCHITECTURE SYN OF %s IS\n\n%s\n%sBEGIN\n%s\n%sEND SYN;\n\n",
      {headerText(), legalNoticeText(), libraryClausesText(), entityText(), fileName_,
       [&](std::string& out) { appendSignalDeclarations(out, signals); }, componentDeclarationsText(),
       [&](std::string& out) { appendConcurrentAssignments(out, signals); },
       [&](std::string& out) { appendInstances(out, signals); }});
}

std::string VhdlFileWriter::buildCompanionText() const {
  return fillTemplate("%s\n\ncomponent %s\n\tPORT\n\t(\n%s\n\t);\nend component;\n",
                      {legalNoticeText(), fileName_, [this](std::string& out) { appendPortList(out); }});
}

std::string VhdlFileWriter::buildInstanceText() const {
  std::string lines;
  const char* prefix = "";
  for (const auto* ports : {&description_.inputPorts, &description_.outputPorts}) {
    for (const CnxUsedPort& port : *ports) {
      appendFormatted(lines, "%s\t\t%s\t => %s_sig", prefix, port.name.c_str(), port.name.c_str());
      prefix = ",\n";
    }
  }
  return fillTemplate("%s_inst : %s PORT MAP(\n%s\n\t);\n", {fileName_, fileName_, lines});
}

}  // namespace plovix
