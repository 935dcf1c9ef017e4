// The Verilog module's port list, port declarations and parameter block, and the instantiation template.
#include "base/Format.h"
#include "base/TextHelpers.h"
#include "hdl/NetlistKeys.h"
#include "hdl/VerilogFileWriter.h"

namespace plovix {

namespace {

// Calls f for every input port, then every output port.
template <class F>
void forEachPort(const CnxDescription& description, F&& f) {
  for (const CnxUsedPort& port : description.inputPorts) f(port);
  for (const CnxUsedPort& port : description.outputPorts) f(port);
}

}  // namespace

std::string VerilogFileWriter::portListText() const {
  std::string text;
  const char* separator = "";
  forEachPort(description_, [&](const CnxUsedPort& port) {
    appendFormatted(text, "%s\t%s", separator, toLowerText(port.name.view()).c_str());
    separator = ",\n";
  });
  return text + ");\n\n";
}

std::string VerilogFileWriter::portDeclarationText() const {
  std::string text;
  forEachPort(description_, [&](const CnxUsedPort& port) {
    appendFormatted(text, "\t%s\t%s%s  %s%s;\n", verilogDirectionWord(port.direction),
                    rangeText(port.shape.rows).c_str(), rangeText(port.shape.bits).c_str(),
                    toLowerText(port.name.view()).c_str(), "");
  });
  return text;
}

std::string VerilogFileWriter::parameterBlockText() const {
  if (description_.parameters.empty()) return {};
  std::string text = "\n\tparameter\n";
  const char* separator = "";
  for (const CnxParameter& parameter : description_.parameters) {
    appendFormatted(text, "%s\t\t%s = %s", separator, parameter.name.c_str(),
                    verilogParameterValue(parameter.type, parameter.value).c_str());
    separator = ",\n";
  }
  return text + ";\n\n";
}

std::string VerilogFileWriter::buildInstanceText() const {
  std::string items;
  const char* separator = "";
  forEachPort(description_, [&](const CnxUsedPort& port) {
    const std::string name = toLowerText(port.name.view());
    appendFormatted(items, "%s\t.%s ( %s_sig )", separator, name.c_str(), name.c_str());
    separator = ",\n";
  });
  return formatText("%s\t%s_inst (\n%s\n\t);\n", fileName_.c_str(), fileName_.c_str(), items.c_str());
}

}  // namespace plovix
