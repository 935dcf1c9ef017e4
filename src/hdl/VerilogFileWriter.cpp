// The Verilog writer's construction, its design, companion and black-box texts and the text rules they share.
#include "hdl/VerilogFileWriter.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/Format.h"
#include "base/OutputKinds.h"
#include "base/TextHelpers.h"
#include "hdl/ValidWiring.h"

namespace plovix {

VerilogFileWriter::VerilogFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                                     const CnxDescription& description, const Netlist& netlist,
                                     HdlTextMode mode)
    : HdlFileWriter(ui, std::move(basePath), std::move(signatureName), description),
      mode_(mode),
      validNetlist_(mode == HdlTextMode::kValid ? validWiring(netlist, description) : nullptr),
      netlist_(validNetlist_ ? *validNetlist_ : netlist) {
  setOutputKind(OutputLanguage::kVerilog);
}

std::string VerilogFileWriter::buildDesignText() const {
  const VerilogNetlist wires = declareVerilogWires(netlist_, description_, signatureName_, mode_);
  return fillTemplate("%s\n%s\nmodule %s (\n%s%s%s\n%s\nendmodule\n\n",
                      {headerText(), legalNoticeText(), fileName_, portListText(), portDeclarationText(),
                       parameterBlockText(), [&](std::string& body) {
                         appendWires(body, wires);
                         appendInstances(body, wires);
                       }});
}

std::string VerilogFileWriter::buildCompanionText() const {
  return {};
}

std::string VerilogFileWriter::buildBlackBoxText() const {
  return fillTemplate(
      "%s\nmodule %s (\n%s%s%s\nendmodule\n\n",
      {legalNoticeText(), fileName_, portListText(), portDeclarationText(), parameterBlockText()});
}

bool VerilogFileWriter::writeBlackBoxFile() const {
  return writeFile(blackBoxPath(), buildBlackBoxText());
}

const char* verilogDirectionWord(PortDirection direction) {
  switch (direction) {
    case PortDirection::kInput:
      return "input";
    case PortDirection::kOutput:
      return "output";
    case PortDirection::kBidir:
      return "inout";
  }
  return "";
}

std::string verilogParameterValue(ValueType type, Name value) {
  if (type == ValueType::kNumeric) return value.str();
  return "\"" + replaceAll(value.view(), "\\", "\\\\") + "\"";
}

long long verilogWidthNumber(Bound width) {
  return width.isInteger() ? width.value() : 0;
}

std::string verilogConstantValue(Name drivingPort, Bound width, HdlTextMode mode) {
  const int bits = width.isZero() ? 1 : static_cast<int32_t>(verilogWidthNumber(width));
  if (drivingPort == "VCC" && mode == HdlTextMode::kValid && bits > 1) return formatText("{%d{1'b1}}", bits);
  if (drivingPort == "VCC") return formatText("%d'H1", bits);
  if (drivingPort == "GND") return formatText("%d'H0", bits);
  // A width no device has (over a million bits) would only make a literal of millions of padding digits.
  constexpr int kLongestLiteral = 1 << 20;
  return formatText("%d'H%s", bits, hexLiteral(drivingPort.view(), std::min(bits, kLongestLiteral)).c_str());
}

}  // namespace plovix
