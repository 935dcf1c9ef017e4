// The writer family's shared operations: construction, the design, companion, symbol and template files.
#include "hdl/HdlFileWriter.h"

#include <utility>

#include "base/Messages.h"
#include "base/PathText.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "cnx/RetrievalInfo.h"
#include "symbol/SymbolBuilder.h"

namespace plovix {

HdlFileWriter::HdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                             const CnxDescription& description)
    : ui_(ui),
      basePath_(std::move(basePath)),
      signatureName_(std::move(signatureName)),
      fileName_(splitPath(basePath_, PathPart::kBaseName)),
      description_(description) {}

void HdlFileWriter::setOutputKind(OutputLanguage language) {
  const OutputKind& kind = outputKind(language);
  commentLeader_ = std::string(kind.commentLeader);
  designExtension_ = std::string(kind.designExtension);
  companionExtension_ = std::string(kind.companionExtension);
}

bool HdlFileWriter::writeFile(const std::string& path, const std::string& text) const {
  int errorNumber = 0;
  const bool written = writeTextFile(path, text, errorNumber);
  if (!written) reportFileErrno(ui_, errorNumber, path);
  if (outcome_ != nullptr) outcome_->recordWrite(path, written, fileErrnoMessage(errorNumber, path));
  return written;
}

// The design text and the retrieval-info block go to the file in one write.
bool HdlFileWriter::writeDesignFile() const {
  std::string text = buildDesignText();
  text += retrievalInfoText(description_, commentLeader_);
  return writeFile(basePath_ + designExtension_, text);
}

bool HdlFileWriter::writeCompanionFile() const {
  return writeFile(companionPath(), buildCompanionText());
}

bool HdlFileWriter::writeSymbolFile() const {
  SymbolBuilder builder(ui_, basePath_, description_);
  const bool written = builder.buildSymbol();
  if (!written) reportFileErrno(ui_, builder.writeError(), symbolPath());
  if (outcome_ != nullptr)
    outcome_->recordWrite(symbolPath(), written, fileErrnoMessage(builder.writeError(), symbolPath()));
  return written;
}

bool HdlFileWriter::writeInstanceFile() const {
  return writeFile(instancePath(), buildInstanceText());
}

}  // namespace plovix
