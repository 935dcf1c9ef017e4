// The THDL design text and its sections: includes, parameters, subdesign, variable and logic.
#include <string>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/ShapeTexts.h"
#include "hdl/ThdlFileWriter.h"

namespace plovix {

namespace {

// " = " + default for inputs and bidirectional ports that have one.
std::string defaultText(const CnxUsedPort& port) {
  const bool takesDefault =
      port.direction == PortDirection::kInput || port.direction == PortDirection::kBidir;
  if (!takesDefault || port.defaultValue.kind == DefaultKind::kNone) return {};
  return " = " + port.defaultValue.text.str();
}

std::string portDeclaration(const CnxUsedPort& port) {
  return formatText("\t%s%s%s\t : %s%s;\n", port.name.c_str(), thdlGroupRange(port.shape.rows).c_str(),
                    thdlGroupRange(port.shape.bits).c_str(),
                    std::string(directionKeyword(port.direction)).c_str(), defaultText(port).c_str());
}

// The WITH clause lines of one instance: its parameters passed on by name, then its constants' values.
std::string instanceParameterLines(const CnxDescription& description, Name instanceName) {
  std::string lines;
  std::string separator;
  for (const CnxParameter& parameter : description.parameters) {
    if (parameter.target != instanceName && !parameter.target.empty()) continue;
    appendFormatted(lines, "%s\t\t\t%s = %s", separator.c_str(), parameter.name.c_str(),
                    parameter.name.c_str());
    separator = ",\n";
  }
  for (const CnxConstant& constant : description.constants) {
    if (constant.target != instanceName && !constant.target.empty()) continue;
    appendFormatted(lines, "%s\t\t\t%s = %s", separator.c_str(), constant.name.c_str(),
                    thdlParameterValue(constant.type, constant.value).c_str());
    separator = ",\n";
  }
  return lines;
}

// The text of a range, remembered for the ranges that recur.
const std::string& groupRange(RangeTexts& ranges, const Range& range) {
  return ranges.get(keyOf(range), [&range] { return thdlGroupRange(range); });
}

void appendEquation(std::string& out, RangeTexts& ranges, Name instance, Name port,
                    const CnxConnectionEnd& end) {
  const std::string driven =
      thdlReference(instance, port) + groupRange(ranges, end.own.rows) + groupRange(ranges, end.own.bits);
  const std::string driver = thdlReference(end.peerInstance, end.peerPort) +
                             groupRange(ranges, end.peer.rows) + groupRange(ranges, end.peer.bits);
  appendFormatted(out, "\t%s = %s%s;\n", driven.c_str(), end.peerInverted ? "!" : "", driver.c_str());
}

}  // namespace

std::string ThdlFileWriter::buildDesignText() const {
  return fillTemplate("%s\n%s\n%s%s%s%s%s%s\n", {headerText(), legalNoticeText(), includeStatements(), "",
                                                 parameterSection(), subdesignSection(), variableSection(),
                                                 [this](std::string& out) { appendLogicSection(out); }});
}

std::string ThdlFileWriter::includeStatements() const {
  std::string text;
  for (const Name& name : description_.moduleNames) {
    appendFormatted(text, "INCLUDE \"%s.inc\";\n", toLowerText(name.view()).c_str());
  }
  return text + "\n";
}

std::string ThdlFileWriter::parameterSection() const {
  if (description_.parameters.empty()) return {};
  std::string lines;
  std::string separator;
  for (const CnxParameter& parameter : description_.parameters) {
    appendFormatted(lines, "%s\t%s\t= %s", separator.c_str(), parameter.name.c_str(),
                    thdlParameterValue(parameter.type, parameter.value).c_str());
    separator = ",\n";
  }
  return fillTemplate("\n\nPARAMETERS (\n%s\n);\n\n", {lines});
}

std::string ThdlFileWriter::subdesignSection() const {
  std::string lines;
  for (const CnxUsedPort& port : description_.inputPorts) lines += portDeclaration(port);
  for (const CnxUsedPort& port : description_.outputPorts) lines += portDeclaration(port);
  return fillTemplate("\n\nSUBDESIGN %s\n(\n%s)\n\n", {fileName_, lines});
}

std::string ThdlFileWriter::variableSection() const {
  std::string text = "VARIABLE\n\n";
  for (const CnxModule& module : description_.modules) {
    appendFormatted(text, "\t%s%s : %s WITH (\n%s\n\t\t\t);\n\n", module.instanceName.c_str(), "_component",
                    toLowerText(module.moduleName.view()).c_str(),
                    instanceParameterLines(description_, module.instanceName).c_str());
  }
  return text;
}

// One equation per connection, written from its driven end, in the connection map's order.
std::string ThdlFileWriter::logicSection() const {
  std::string text;
  appendLogicSection(text);
  return text;
}

void ThdlFileWriter::appendLogicSection(std::string& text) const {
  appendTemplate(
      text, "BEGIN\n\n%sEND;\n\n\n", {[this](std::string& equations) {
        RangeTexts ranges;
        description_.connectionMap.forEachEnd([&](Name instance, Name port, const CnxConnectionEnd& end) {
          if (end.peerIsSource) appendEquation(equations, ranges, instance, port, end);
        });
      }});
}

}  // namespace plovix
