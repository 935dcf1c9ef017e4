// The VHDL entity of a variation and its port list.
#include "hdl/VhdlFileWriter.h"

#include "base/Format.h"
#include "hdl/ShapeTexts.h"
#include "hdl/VhdlTextRules.h"

namespace plovix {

std::string VhdlFileWriter::portListText() const {
  std::string text;
  appendPortList(text);
  return text;
}

void VhdlFileWriter::appendPortList(std::string& text) const {
  ShapeTexts types;
  const char* separator = "";
  for (const auto* ports : {&description_.inputPorts, &description_.outputPorts}) {
    for (const CnxUsedPort& port : *ports) {
      text +=
          formatText("%s\t\t%s\t\t: %s %s%s", separator, port.name.c_str(), vhdlDirectionWord(port.direction),
                     types.get(keyOf(port.shape), [&port] { return vhdlTypeText(port.shape); }).c_str(),
                     vhdlDefaultText(port, mode_).c_str());
      separator = ";\n";
    }
  }
}

std::string VhdlFileWriter::entityText() const {
  return fillTemplate("\nENTITY %s IS\n\tPORT\n\t(\n%s\n\t);\nEND %s;\n\n\n",
                      {fileName_, [this](std::string& out) { appendPortList(out); }, fileName_});
}

}  // namespace plovix
