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
  std::string blackBoxPath() const { return basePath_ + "_bb" + designExtension_; }
  std::string buildBlackBoxText();

 private:
  // The module's port names, then its port declarations.
  std::string portListText() const;
  std::string portDeclarationText() const;
  // The module's own parameters; empty when it has none.
  std::string parameterBlockText() const;
  // The internal wires with their values, then the wires of the variation's outputs. Builds the netlist.
  std::string wireText();
  // One instance of every sub-module with its port connections and parameter settings.
  std::string instancesText() const;
};

// Text rules the Verilog sections share.
std::string verilogDirectionWord(const std::string& direction);
std::string verilogParameterValue(const std::string& type, const std::string& value);
std::string verilogConstantValue(const std::string& drivingPort, const std::string& width);
// A width as an integer; a width that is not a decimal number counts as 0.
long long verilogWidthNumber(const std::string& width);

}  // namespace plovix
