// The Verilog writer: design text, black box and instantiation template of a variation.
#pragma once

#include <memory>
#include <string>

#include "hdl/HdlFileWriter.h"
#include "hdl/HdlTextMode.h"
#include "hdl/Netlist.h"
#include "hdl/VerilogNetlist.h"

namespace plovix {

class VerilogFileWriter : public HdlFileWriter {
 public:
  // The writer reads `netlist` (built from `description` for `signatureName`), which must outlive it.
  // `mode` chooses the standard text or the valid forms of the known constructs (docs/hdl-text.md).
  VerilogFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                    const CnxDescription& description, const Netlist& netlist,
                    HdlTextMode mode = HdlTextMode::kStandard);

  std::string buildDesignText() const override;
  // Verilog has no companion file; the text is empty.
  std::string buildCompanionText() const override;
  std::string buildInstanceText() const override;

  // basePath + "_bb" + designExtension: the module's ports and parameters with an empty body.
  bool writeBlackBoxFile() const;
  std::string blackBoxPath() const { return basePath_ + "_bb" + designExtension_; }
  std::string buildBlackBoxText() const;

  // The sections. The body's sections read the netlist as its wires are declared (declareVerilogWires).
  // The module's port names, then its port declarations.
  std::string portListText() const;
  std::string portDeclarationText() const;
  // The module's own parameters; empty when it has none.
  std::string parameterBlockText() const;
  // The internal wires with their values, then the wires of the variation's outputs.
  std::string wireText(const VerilogNetlist& wires) const;
  // One instance of every sub-module with its port connections and parameter settings.
  std::string instancesText(const VerilogNetlist& wires) const;

 private:
  // The body's sections append themselves to the design text as it is built.
  void appendWires(std::string& text, const VerilogNetlist& wires) const;
  void appendInstances(std::string& text, const VerilogNetlist& wires) const;

  HdlTextMode mode_;
  // The valid text's rewired netlist (validWiring), where it differs from the one given.
  std::unique_ptr<Netlist> validNetlist_;
  const Netlist& netlist_;
};

// Text rules the Verilog sections share.
const char* verilogDirectionWord(PortDirection direction);
std::string verilogParameterValue(ValueType type, Name value);
// A constant of `width` bits; VCC driving a bus is n'H1 in the standard text and all ones in the valid one.
std::string verilogConstantValue(Name drivingPort, Bound width, HdlTextMode mode = HdlTextMode::kStandard);
// A width as an integer; a width that is not a decimal number counts as 0.
long long verilogWidthNumber(Bound width);

}  // namespace plovix
