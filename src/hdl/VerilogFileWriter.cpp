// The Verilog writer's construction, its design, companion and black-box texts and the text rules they share.
#include "hdl/VerilogFileWriter.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/Format.h"
#include "base/OutputKinds.h"
#include "base/TextHelpers.h"

namespace plovix {

VerilogFileWriter::VerilogFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                                     CnxDescription& description)
    : HdlFileWriter(ui, std::move(basePath), std::move(signatureName), description) {
  const OutputKind& kind = outputKind(OutputLanguage::kVerilog);
  commentLeader_ = std::string(kind.commentLeader);
  designExtension_ = std::string(kind.designExtension);
  companionExtension_ = std::string(kind.companionExtension);
}

std::string VerilogFileWriter::buildDesignText() {
  // The wires build the netlist that the instances read.
  std::string body = wireText();
  body += instancesText();
  return formatText("%s\n%s\nmodule %s (\n%s%s%s\n%s\nendmodule\n\n", headerText().c_str(),
                    legalNoticeText().c_str(), fileName_.c_str(), portListText().c_str(),
                    portDeclarationText().c_str(), parameterBlockText().c_str(), body.c_str());
}

std::string VerilogFileWriter::buildCompanionText() {
  return {};
}

std::string VerilogFileWriter::buildBlackBoxText() {
  return formatText("%s\nmodule %s (\n%s%s%s\nendmodule\n\n", legalNoticeText().c_str(), fileName_.c_str(),
                    portListText().c_str(), portDeclarationText().c_str(), parameterBlockText().c_str());
}

bool VerilogFileWriter::writeBlackBoxFile() {
  return writeFile(blackBoxPath(), buildBlackBoxText());
}

std::string verilogDirectionWord(const std::string& direction) {
  if (direction == "INPUT") return "input";
  if (direction == "OUTPUT") return "output";
  if (direction == "BIDIR") return "inout";
  return direction;
}

std::string verilogParameterValue(const std::string& type, const std::string& value) {
  if (type == "NUMERIC") return value;
  return "\"" + replaceAll(value, "\\", "\\\\") + "\"";
}

long long verilogWidthNumber(const std::string& width) {
  return isIntegerText(width) ? atoiText(width) : 0;
}

std::string verilogConstantValue(const std::string& drivingPort, const std::string& width) {
  const int bits = width == "0" ? 1 : static_cast<int32_t>(verilogWidthNumber(width));
  if (drivingPort == "VCC") return formatText("%d'H1", bits);
  if (drivingPort == "GND") return formatText("%d'H0", bits);
  // A width no device has (over a million bits) would only make a literal of millions of padding digits.
  constexpr int kLongestLiteral = 1 << 20;
  return formatText("%d'H%s", bits, hexLiteral(drivingPort, std::min(bits, kLongestLiteral)).c_str());
}

}  // namespace plovix
