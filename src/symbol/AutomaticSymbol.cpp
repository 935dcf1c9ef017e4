// The automatic symbol: the drawing library lays out the pins and the parameter text and writes the file.
#include "symbol/AutomaticSymbol.h"

#include <cerrno>

#include "plovix_host.h"
#include "symbol/SymbolBuilder.h"
#include "symbol/SymbolCodes.h"

namespace plovix {

namespace {

std::string rangeSuffix(const Range& range) {
  if (!range.present()) return {};
  return "[" + range.upperText() + ".." + range.low.text() + "]";
}

}  // namespace

std::string pinNameOf(const CnxUsedPort& port) {
  return port.name.str() + rangeSuffix(port.shape.rows) + rangeSuffix(port.shape.bits);
}

std::string parameterTextOf(const CnxDescription& description) {
  std::string text;
  for (size_t i = 0; i < description.parameters.size(); ++i) {
    const CnxParameter& parameter = description.parameters[i];
    if (i > 0) text += "\n";
    text += parameter.name.view();
    text += "=";
    if (parameter.value != kNoDefaultValue) text += parameter.value.view();
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
      gio_sym_add_pin_stub_w_alt_text(port.tag.c_str(), pinNameOf(port).c_str(),
                                      pinTypeCode(directionKeyword(port.direction)), instance_);
  errno = 0;
  const bool written =
      gio_sym_auto_gen_sym_w_params_w_alt_text(instance_, parameterTextOf(description_).c_str()) != 0;
  writeError_ = written ? 0 : errno;
  return written;
}

}  // namespace plovix
