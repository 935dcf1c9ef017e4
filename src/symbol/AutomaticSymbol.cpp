// The automatic symbol: the drawing library lays out the pins and the parameter text and writes the file.
#include "symbol/AutomaticSymbol.h"

#include "base/TextHelpers.h"
#include "plovix_host.h"
#include "symbol/SymbolBuilder.h"
#include "symbol/SymbolCodes.h"

namespace plovix {

namespace {

std::string rangeSuffix(const std::string& width, const std::string& low) {
  if (width == "0") return {};
  return "[" + upperBoundText(width, low) + ".." + low + "]";
}

}  // namespace

std::string pinNameOf(const CnxUsedPort& port) {
  return port.name + rangeSuffix(port.width1, port.low1) + rangeSuffix(port.width2, port.low2);
}

std::string parameterTextOf(const CnxDescription& description) {
  std::string text;
  for (size_t i = 0; i < description.parameters.size(); ++i) {
    const CnxParameter& parameter = description.parameters[i];
    if (i > 0) text += "\n";
    text += parameter.name + "=";
    if (parameter.value != "NODEFVAL") text += parameter.value;
  }
  return text;
}

// The ports' pins go in as inputs first, then outputs, each list in its order; the main module's own ports
// are not pins of the variation.
bool SymbolBuilder::buildAutomaticSymbol(const std::string& fileName) {
  gio_error_context error{};
  const short made = gio_sym_auto_gen_begin(&error, fileName.c_str(), 0);
  keepInstance(made, error.code);
  for (const auto* ports : {&description_.inputPorts, &description_.outputPorts})
    for (const CnxUsedPort& port : *ports)
      gio_sym_add_pin_stub_w_alt_text(port.tag.c_str(), pinNameOf(port).c_str(), pinTypeCode(port.direction),
                                      instance_);
  return gio_sym_auto_gen_sym_w_params_w_alt_text(instance_, parameterTextOf(description_).c_str()) != 0;
}

}  // namespace plovix
