// The THDL design text and its sections: includes, parameters, subdesign, variable and logic.
#include <string>

#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/ThdlFileWriter.h"

namespace plovix {

namespace {

// " = " + default for inputs and bidirectional ports that have one.
std::string defaultText(const CnxUsedPort& port) {
  const bool takesDefault = port.direction == "INPUT" || port.direction == "BIDIR";
  if (!takesDefault || port.defaultValue == "NODEFVAL") return {};
  return " = " + port.defaultValue;
}

std::string portDeclaration(const CnxUsedPort& port) {
  return formatText("\t%s%s%s\t : %s%s;\n", port.name.c_str(), thdlGroupRange(port.width1, port.low1).c_str(),
                    thdlGroupRange(port.width2, port.low2).c_str(), port.direction.c_str(),
                    defaultText(port).c_str());
}

// The WITH clause lines of one instance: its parameters passed on by name, then its constants' values.
std::string instanceParameterLines(const CnxDescription& description, const std::string& instanceName) {
  std::string lines;
  std::string separator;
  for (const CnxParameter& parameter : description.parameters) {
    if (parameter.target != instanceName && !parameter.target.empty()) continue;
    lines += formatText("%s\t\t\t%s = %s", separator.c_str(), parameter.name.c_str(), parameter.name.c_str());
    separator = ",\n";
  }
  for (const CnxConstant& constant : description.constants) {
    if (constant.target != instanceName && !constant.target.empty()) continue;
    lines += formatText("%s\t\t\t%s = %s", separator.c_str(), constant.name.c_str(),
                        thdlParameterValue(constant.type, constant.value).c_str());
    separator = ",\n";
  }
  return lines;
}

std::string equation(const std::string& instance, const std::string& port, const CnxConnectionEnd& end) {
  const std::string driven = thdlReference(instance, port) + thdlGroupRange(end.ownWidth1, end.ownLow1) +
                             thdlGroupRange(end.ownWidth2, end.ownLow2);
  const std::string driver = thdlReference(end.peerInstance, end.peerPort) +
                             thdlGroupRange(end.peerWidth1, end.peerLow1) +
                             thdlGroupRange(end.peerWidth2, end.peerLow2);
  return formatText("\t%s = %s%s;\n", driven.c_str(), end.peerInverted ? "!" : "", driver.c_str());
}

}  // namespace

std::string ThdlFileWriter::buildDesignText() {
  return formatText("%s\n%s\n%s%s%s%s%s%s\n", headerText().c_str(), legalNoticeText().c_str(),
                    includeStatements().c_str(), "", parameterSection().c_str(), subdesignSection().c_str(),
                    variableSection().c_str(), logicSection().c_str());
}

std::string ThdlFileWriter::includeStatements() const {
  std::string text;
  for (const std::string& name : description_.moduleNames) {
    text += formatText("INCLUDE \"%s.inc\";\n", toLowerText(name).c_str());
  }
  return text + "\n";
}

std::string ThdlFileWriter::parameterSection() const {
  if (description_.parameters.empty()) return {};
  std::string lines;
  std::string separator;
  for (const CnxParameter& parameter : description_.parameters) {
    lines += formatText("%s\t%s\t= %s", separator.c_str(), parameter.name.c_str(),
                        thdlParameterValue(parameter.type, parameter.value).c_str());
    separator = ",\n";
  }
  return formatText("\n\nPARAMETERS (\n%s\n);\n\n", lines.c_str());
}

std::string ThdlFileWriter::subdesignSection() const {
  std::string lines;
  for (const CnxUsedPort& port : description_.inputPorts) lines += portDeclaration(port);
  for (const CnxUsedPort& port : description_.outputPorts) lines += portDeclaration(port);
  return formatText("\n\nSUBDESIGN %s\n(\n%s)\n\n", fileName_.c_str(), lines.c_str());
}

std::string ThdlFileWriter::variableSection() const {
  std::string text = "VARIABLE\n\n";
  for (const CnxModule& module : description_.modules) {
    text += formatText("\t%s%s : %s WITH (\n%s\n\t\t\t);\n\n", module.instanceName.c_str(), "_component",
                       toLowerText(module.moduleName).c_str(),
                       instanceParameterLines(description_, module.instanceName).c_str());
  }
  return text;
}

// One equation per connection, written from its driven end, in the connection map's order.
std::string ThdlFileWriter::logicSection() const {
  std::string equations;
  description_.connectionMap.forEach([&equations](const std::string& instance, const CnxPortMap& ports) {
    ports.forEach([&](const std::string& port, const CnxEndList& ends) {
      for (const CnxConnectionEnd& end : ends) {
        if (end.peerIsSource) equations += equation(instance, port, end);
      }
    });
  });
  return formatText("BEGIN\n\n%sEND;\n\n\n", equations.c_str());
}

}  // namespace plovix
