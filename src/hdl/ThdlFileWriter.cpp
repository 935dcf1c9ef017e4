// The THDL writer's construction and the text rules its sections share.
#include "hdl/ThdlFileWriter.h"

#include <utility>

#include "base/OutputKinds.h"
#include "base/TextHelpers.h"

namespace plovix {

ThdlFileWriter::ThdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                               CnxDescription& description)
    : HdlFileWriter(ui, std::move(basePath), std::move(signatureName), description) {
  const OutputKind& kind = outputKind(OutputLanguage::kThdl);
  commentLeader_ = std::string(kind.commentLeader);
  designExtension_ = std::string(kind.designExtension);
  companionExtension_ = std::string(kind.companionExtension);
}

std::string thdlGroupRange(const std::string& width, const std::string& low) {
  if (width == "0") return {};
  return "[" + upperBoundText(width, low) + ".." + low + "]";
}

std::string thdlParameterValue(const std::string& type, const std::string& value) {
  if (type == "NUMERIC") return value;
  return "\"" + value + "\"";
}

std::string thdlReference(const std::string& instance, const std::string& port) {
  if (instance.empty()) return port;
  return instance + "_component" + "." + port;
}

}  // namespace plovix
