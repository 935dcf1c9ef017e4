// The writer family: what every language writer is given, the files it writes and the texts it builds.
// Writers hold only what they are given (the description, and for VHDL and Verilog the netlist); every text
// is a function of it, so the texts can be built in any order and as often as wanted.
#pragma once

#include <string>

#include "base/OutputKinds.h"
#include "base/RunOutcome.h"
#include "base/UserInterface.h"
#include "cnx/CnxDescription.h"

namespace plovix {

class HdlFileWriter {
 public:
  // `basePath` is the output directory followed by the variation's base name, without extension;
  // `signatureName` the modulon's name, written in the signature line.
  HdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                const CnxDescription& description);
  virtual ~HdlFileWriter() = default;
  HdlFileWriter(const HdlFileWriter&) = delete;
  HdlFileWriter& operator=(const HdlFileWriter&) = delete;

  // basePath + designExtension: the design text followed by the retrieval info.
  bool writeDesignFile() const;
  // basePath + companionExtension: the companion text.
  bool writeCompanionFile() const;
  // The symbol, through the symbol builder: whether the drawing library wrote it.
  bool writeSymbolFile() const;
  // basePath + "_inst" + designExtension: the instantiation template.
  bool writeInstanceFile() const;

  // The design text without the retrieval info.
  std::string designText() const { return buildDesignText(); }
  // The generated-file header.
  std::string headerText() const;
  virtual std::string buildDesignText() const = 0;
  virtual std::string buildCompanionText() const = 0;
  virtual std::string buildInstanceText() const = 0;

  const std::string& basePath() const { return basePath_; }
  const std::string& fileName() const { return fileName_; }
  const std::string& signatureName() const { return signatureName_; }
  const std::string& commentLeader() const { return commentLeader_; }
  const std::string& designExtension() const { return designExtension_; }
  const std::string& companionExtension() const { return companionExtension_; }
  std::string companionPath() const { return basePath_ + companionExtension_; }
  std::string symbolPath() const { return basePath_ + ".sym"; }
  std::string instancePath() const { return basePath_ + "_inst" + designExtension_; }

  // From now on every file this writer writes, or fails to write, is recorded in `outcome`.
  void recordWritesIn(RunOutcome& outcome) { outcome_ = &outcome; }

 protected:
  // Writes `text` to `path` and reports a failure through the file-error messages.
  bool writeFile(const std::string& path, const std::string& text) const;
  // The 20-line legal notice block in this writer's comment style.
  std::string legalNoticeText() const;
  // Sets the language's comment leader and extensions from the output kind table.
  void setOutputKind(OutputLanguage language);

  UserInterface& ui_;
  std::string basePath_;
  std::string signatureName_;
  std::string fileName_;
  std::string commentLeader_;
  std::string designExtension_;
  std::string companionExtension_;
  const CnxDescription& description_;
  RunOutcome* outcome_ = nullptr;
};

}  // namespace plovix
