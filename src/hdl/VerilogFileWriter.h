// The Verilog writer: design text, black box and instantiation template of a variation.
#pragma once

#include <string>

#include "hdl/HdlFileWriter.h"

namespace plovix {

class VerilogFileWriter : public HdlFileWriter {
 public:
  VerilogFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                    CnxDescription& description);

  std::string buildDesignText() override;
  // Verilog has no companion file; the text is empty.
  std::string buildCompanionText() override;
  std::string buildInstanceText() override;

  // basePath + "_bb" + designExtension: the module's ports and parameters with an empty body.
  bool writeBlackBoxFile();
  std::string buildBlackBoxText();

 private:
  std::string portListText();
  std::string portDeclarationText();
  std::string parameterBlockText();
  std::string wireText();
  std::string instanceText();
};

}  // namespace plovix
