// The VHDL writer: design text (entity and structural architecture), component declaration and template.
#pragma once

#include <string>
#include <vector>

#include "hdl/HdlFileWriter.h"

namespace plovix {

// A conversion signal: one sub-module port fed by several connections, joined with " & " into one signal.
// It uses the wire fields: `sourceText` the joined text, `name` a fresh "sub_wire%d" name, `sourceKey`
// instance + "." + port, `drivingPort` the port, `width1`/`width2` the summed widths, both flags false.
using VhdlConversion = NetlistWire;

class VhdlFileWriter : public HdlFileWriter {
 public:
  VhdlFileWriter(UserInterface& ui, std::string basePath, std::string signatureName,
                 CnxDescription& description);

  // Header, legal notice, library clauses, entity and the architecture SYN. Builds the netlist first.
  std::string buildDesignText() override;
  // The component declaration file: legal notice and the variation as a component.
  std::string buildCompanionText() override;
  // An instance of the variation that maps every port to a signal named port + "_sig".
  std::string buildInstanceText() override;

  // The sections of the design text. The signal declarations build the netlist and the conversion records
  // that the later sections read, so they are called in the order they are declared here.
  std::string libraryClausesText() const;
  std::string entityText() const;
  // The entity's port lines, joined by ";\n"; the component declaration file repeats them.
  std::string portListText() const;
  std::string signalDeclarationsText();
  std::string componentDeclarationsText();
  // Fills `conversions` from the connections of every instance.
  void buildConversions();
  // The four sections of concurrent assignments.
  std::string concurrentAssignmentsText() const;
  std::string instancesText() const;
  // The type declaration and the procedure that unpack a flat vector into a two-dimensional signal, sized
  // by the last two-dimensional wire.
  std::string twoDimensionalProcedureText() const;

  // Conversion signals, drawn from the same counter as the wires.
  std::vector<VhdlConversion> conversions;

 private:
  // Wire declarations; merges wires that widen to the same main-module port.
  std::string wireDeclarationsText();
};

}  // namespace plovix
