// The VHDL writer's construction, the design text frame, the component declaration file and the template.
#include "hdl/VhdlFileWriter.h"

#include <utility>

#include "base/Format.h"
#include "base/OutputKinds.h"

namespace plovix {

VhdlFileWriter::VhdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                               CnxDescription& description)
    : HdlFileWriter(ui, std::move(basePath), std::move(signatureName), description) {
  const OutputKind& kind = outputKind(OutputLanguage::kVhdl);
  commentLeader_ = std::string(kind.commentLeader);
  designExtension_ = std::string(kind.designExtension);
  companionExtension_ = std::string(kind.companionExtension);
}

std::string VhdlFileWriter::buildDesignText() {
  // The netlist is built afresh, so that a second call gives the same text as the first.
  netlistFlag = 0;
  wires.clear();
  connections.clear();
  subModulePorts.clear();
  conversions.clear();
  wireCounter = 0;

  const std::string libraries = libraryClausesText();
  const std::string entity = entityText();
  const std::string signals = signalDeclarationsText();
  const std::string components = componentDeclarationsText();
  const std::string assignments = concurrentAssignmentsText();
  const std::string instances = instancesText();
  return formatText("%s\n%s\n%s%sARCHITECTURE SYN OF %s IS\n\n%s\n%sBEGIN\n%s\n%sEND SYN;\n\n",
                    headerText().c_str(), legalNoticeText().c_str(), libraries.c_str(), entity.c_str(),
                    fileName_.c_str(), signals.c_str(), components.c_str(), assignments.c_str(),
                    instances.c_str());
}

std::string VhdlFileWriter::buildCompanionText() {
  return formatText("%s\n\ncomponent %s\n\tPORT\n\t(\n%s\n\t);\nend component;\n", legalNoticeText().c_str(),
                    fileName_.c_str(), portListText().c_str());
}

std::string VhdlFileWriter::buildInstanceText() {
  std::string lines;
  const char* prefix = "";
  for (const auto* ports : {&description_.inputPorts, &description_.outputPorts}) {
    for (const CnxUsedPort& port : *ports) {
      lines += formatText("%s\t\t%s\t => %s_sig", prefix, port.name.c_str(), port.name.c_str());
      prefix = ",\n";
    }
  }
  return formatText("%s_inst : %s PORT MAP(\n%s\n\t);\n", fileName_.c_str(), fileName_.c_str(),
                    lines.c_str());
}

}  // namespace plovix
