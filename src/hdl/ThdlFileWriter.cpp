// The THDL writer's construction and the text rules its sections share.
#include "hdl/ThdlFileWriter.h"

#include <utility>

namespace plovix {

ThdlFileWriter::ThdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                               const CnxDescription& description)
    : HdlFileWriter(ui, std::move(basePath), std::move(signatureName), description) {
  setOutputKind(OutputLanguage::kThdl);
}

std::string thdlGroupRange(const Range& range) {
  if (!range.present()) return {};
  return "[" + range.upperText() + ".." + range.low.text() + "]";
}

std::string thdlParameterValue(ValueType type, Name value) {
  if (type == ValueType::kNumeric) return value.str();
  return "\"" + value.str() + "\"";
}

std::string thdlReference(Name instance, Name port) {
  if (instance.empty()) return port.str();
  return instance.str() + "_component" + "." + port.str();
}

}  // namespace plovix
