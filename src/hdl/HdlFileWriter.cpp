// The writer family's shared operations: construction, the design, companion, symbol and template files.
#include "hdl/HdlFileWriter.h"

#include <utility>
#include <vector>

#include "base/PathText.h"
#include "base/Report.h"
#include "base/TextFile.h"
#include "symbol/SymbolBuilder.h"

namespace plovix {

namespace {

// Holds back the reports of a step until it is known whether they are to be shown; questions go through.
class HeldReports : public UserInterface {
 public:
  explicit HeldReports(UserInterface& ui) : ui_(ui) {}
  void report(const std::string& text) override { held_.push_back(text); }
  bool ask(const std::string& text) override { return ui_.ask(text); }
  bool processEvents() override { return ui_.processEvents(); }
  void show() {
    for (const std::string& text : held_) ui_.report(text);
    held_.clear();
  }

 private:
  UserInterface& ui_;
  std::vector<std::string> held_;
};

}  // namespace

HdlFileWriter::HdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                             CnxDescription& description)
    : ui_(ui),
      basePath_(std::move(basePath)),
      signatureName_(std::move(signatureName)),
      fileName_(splitPath(basePath_, PathPart::kBaseName)),
      version_(description.version),
      description_(description) {}

bool HdlFileWriter::writeFile(const std::string& path, const std::string& text) {
  int errorNumber = 0;
  const bool written = writeTextFile(path, text, errorNumber);
  if (!written) reportFileErrno(ui_, errorNumber, path);
  if (outcome_ != nullptr) outcome_->recordWrite(path, written, fileErrnoMessage(errorNumber, path));
  return written;
}

// The design text and the retrieval-info block go to the file in one write. The block's own failures are
// shown only when the design text reached the file, as if the block had been appended to the written text.
bool HdlFileWriter::writeDesignFile() {
  std::string text = buildDesignText();
  HeldReports held(ui_);
  std::string block;
  const bool blockBuilt = description_.writeRetrievalInfo(held, designExtension_, block);
  if (blockBuilt) text += block;
  if (!writeFile(basePath_ + designExtension_, text)) return false;
  held.show();
  return blockBuilt;
}

bool HdlFileWriter::writeCompanionFile() {
  return writeFile(companionPath(), buildCompanionText());
}

bool HdlFileWriter::writeSymbolFile() {
  SymbolBuilder builder(ui_, basePath_, description_);
  const bool written = builder.buildSymbol();
  if (outcome_ != nullptr)
    outcome_->recordWrite(symbolPath(), written, std::string(errorText(Msg::kNotWrittenByHost)));
  return written;
}

bool HdlFileWriter::writeInstanceFile() {
  return writeFile(instancePath(), buildInstanceText());
}

std::string HdlFileWriter::designText() {
  return buildDesignText();
}

}  // namespace plovix
